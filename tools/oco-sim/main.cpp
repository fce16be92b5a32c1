// oco-sim: a local stand-in for the Orbis Control Office's web service, answering every path the
// program asks the agency for from one dataset file, with faults on demand (see sim_server.hpp).
//
//   oco-sim --port N --dataset FILE [--towns FILE] [--country FILE] [--user U --password P]
//
// Port 0 takes a free port. The first line on standard output tells the address once it listens:
// "oco-sim listening on http://127.0.0.1:<port>". --country defaults to the Country.dat beside the
// executable; --user and --password make every service path ask for HTTP basic authentication.
//
// The server sits on QTcpServer rather than Qt's own HTTP server module: that module (6.4 in
// Debian 12) always answers at once and whole, and cannot delay an answer, withhold it or cut it
// short, which the faults need.
#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "common/runtime_failure.hpp"
#include "sim_server.hpp"

namespace {

int Usage(const char* why) {
  std::fprintf(stderr, "oco-sim: %s\nusage: oco-sim --port N --dataset FILE [--towns FILE] [--country FILE] "
                       "[--user U --password P]\n", why);
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  std::map<std::string, std::string> options = {{"--port", "8642"}};
  for (int i = 1; i < argc; ++i) {
    const std::string name = argv[i];
    static const char* const kKnown[] = {"--port", "--dataset", "--towns", "--country", "--user", "--password"};
    bool known = false;
    for (const char* option : kKnown) known = known || name == option;
    if (!known || i + 1 == argc) return Usage(("unknown option or missing value: " + name).c_str());
    options[name] = argv[++i];
  }
  if (!options.count("--dataset")) return Usage("--dataset is required");
  if (!options.count("--country"))
    options["--country"] = QCoreApplication::applicationDirPath().toStdString() + "/Country.dat";

  std::unique_ptr<ocosim::SimServer> server;
  try {
    ocosim::ServiceData data{ocosim::SimDataset::Read(options["--dataset"]),
                             benchlog::FipsIndex(options["--country"]), std::nullopt};
    if (options.count("--towns")) data.townsFile = ocosim::TownsFromFile(options["--towns"]);
    server = std::make_unique<ocosim::SimServer>(std::move(data),
                                                 ocosim::Login{options["--user"], options["--password"]});
  } catch (const benchlog::RuntimeFailure& failure) {
    std::fprintf(stderr, "oco-sim: %s (dataset %s, country file %s)\n", failure.description.c_str(),
                 options["--dataset"].c_str(), options["--country"].c_str());
    return 1;
  }
  std::string error;
  if (!server->Listen(static_cast<quint16>(std::atoi(options["--port"].c_str())), error)) {
    std::fprintf(stderr, "oco-sim: cannot listen on port %s: %s\n", options["--port"].c_str(), error.c_str());
    return 1;
  }
  std::printf("oco-sim listening on http://127.0.0.1:%u\n", static_cast<unsigned>(server->Port()));
  std::fflush(stdout);
  return app.exec();
}

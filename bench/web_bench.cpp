// web_bench [--mb N] [--dir FOLDER]: the download of 1,000 Descriptions from oco-sim in 10 batches
// of 100, through the program's own transfer (Qt's network access) and GetPidBatches, on a
// generated dataset (10 MB unless given). Only the transfer is timed; the target is under 1 second.
#include <QCoreApplication>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "bench_options.hpp"
#include "bench_timing.hpp"
#include "common/files.hpp"
#include "dataset_generator.hpp"
#include "fakes/fakes.hpp"
#include "fakes/oco_sim_process.hpp"
#include "platform/qt/qt_http_transport.hpp"
#include "web/web_transfers.hpp"

namespace benchlog::bench {
namespace {

constexpr std::size_t kPids = 1000;

std::size_t Count(const std::string& text, const std::string& what) {
  std::size_t count = 0;
  for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += what.size()) ++count;
  return count;
}

int Run(std::uint64_t megabytes, const std::string& folder) {
  std::filesystem::create_directories(folder);
  const std::string dat = folder + "/web_source.dat";
  const GeneratedDataset made = GenerateDataset(dat, BenchDatasetBytes(megabytes));
  if (made.pids.size() < kPids) throw std::runtime_error("the dataset holds fewer than 1,000 Descriptions");
  const std::vector<std::string> pids(made.pids.begin(), made.pids.begin() + kPids);

  testing::OcoSimProcess sim(dat);
  testing::FakePlatform fake(folder);
  fake.progress.observer = nullptr;
  fake.settings.SaveSetting("Settings", "ServiceAddress", sim.BaseUrl());
  qt::QtHttpTransport transport(fake.settings);
  fake.platform.http = &transport;

  std::string response, errMsg;
  const double seconds = Best(5, [&] { return Seconds([&] { GetPidBatches(fake.platform, pids, response, errMsg); }); });
  if (!errMsg.empty()) throw std::runtime_error("the download failed: " + errMsg);
  std::size_t found = 0;
  for (const auto& pid : pids) found += Count(response, " " + pid + " ") > 0 ? 1 : 0;
  std::printf("%zu Descriptions asked for, %zu in the answer, %zu bytes\n", pids.size(), found, response.size());
  std::printf("%-34s %10.3f ms  %-20s %s\n", "GetPidBatches (10 batches)", seconds * 1000, "< 1000 ms",
              seconds < 1.0 && found == kPids ? "met" : "NOT MET");
  return found == kPids ? 0 : 1;
}

}  // namespace
}  // namespace benchlog::bench

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  try {
    auto options = benchlog::bench::ReadBenchOptions(argc, argv, "benchlog-web-bench");
    bool sized = false;
    for (int i = 1; i < argc; ++i) sized = sized || std::string(argv[i]) == "--mb";
    return benchlog::bench::Run(sized ? options.megabytes : 10, options.folder);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "web_bench: %s\n", failure.what());
    return 1;
  }
}

// dataset_bench [--mb N] [--dir FOLDER]: times the dataset operations on a generated dataset of N
// megabytes (100 by default) beside baselines measured in the same run: the index build against
// `wc -l` of the same file, loading a valid index, 1,000 look-ups with GetDescription, and the
// compression against `cp` of the file; and the build's peak memory in a process of its own.
// Each figure is the best of a few runs, with the file in the page cache.
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "session/session.hpp"
#include "common/files.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset/compress_dataset.hpp"
#include "dataset/description_file.hpp"
#include "dataset/load_dataset_index.hpp"
#include "bench_options.hpp"
#include "bench_timing.hpp"
#include "dataset_generator.hpp"
#include "fakes/fakes.hpp"

extern char** environ;

namespace benchlog::bench {
namespace {

// The scripted platform of the tests: message boxes are recorded, so a failure is noticed.
struct QuietPlatform {
  explicit QuietPlatform(const std::string& appPath) : fake(appPath) { fake.progress.observer = nullptr; }
  testing::FakePlatform fake;
  Platform& platform = fake.platform;
  void Check(const char* what) const {
    if (!fake.ui.messages.empty()) throw std::runtime_error(std::string(what) + ": " + fake.ui.messages.front().text);
  }
};

std::string Quoted(const std::string& path) { return "'" + path + "'"; }

double TimeShell(const std::string& command) {
  return Seconds([&] {
    if (std::system(command.c_str()) != 0) throw std::runtime_error("failed: " + command);
  });
}

// The build alone in a fresh process, so that its peak resident size is the build's own.
long BuildPeakKilobytes(const char* self, const std::string& dat, const std::string& ndx) {
  std::vector<std::string> args = {self, "--build-only", dat, ndx};
  std::vector<char*> argv;
  for (auto& a : args) argv.push_back(a.data());
  argv.push_back(nullptr);
  pid_t child = 0;
  if (posix_spawn(&child, self, nullptr, nullptr, argv.data(), environ) != 0) throw std::runtime_error("spawn");
  int status = 0;
  rusage usage{};
  if (wait4(child, &status, 0, &usage) < 0 || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
    throw std::runtime_error("the build process failed");
  return usage.ru_maxrss;
}

int BuildOnly(const std::string& dat, const std::string& ndx) {
  QuietPlatform quiet(std::filesystem::path(ndx).parent_path().string());
  MarkIndex index;
  return BuildMarkIndex(dat, ndx, index, quiet.platform) ? 0 : 1;
}

void Report(const char* what, double value, const char* unit, const std::string& against, bool met) {
  std::printf("%-34s %10.3f %-3s %-34s %s\n", what, value, unit, against.c_str(), met ? "met" : "NOT MET");
}

int Run(const char* self, std::uint64_t megabytes, const std::string& folder) {
  std::filesystem::create_directories(folder);
  const std::string dat = folder + "/bench.dat";
  const std::string ndx = folder + "/bench.ndx";
  const std::string work = folder + "/work.dat";
  const GeneratedDataset made = GenerateBenchDataset(dat, megabytes);
  if (!FitsSizeLimit(made.bytes)) throw std::runtime_error("the generated dataset is past the size limit");
  std::printf("%llu bytes, %zu Descriptions\n\n", static_cast<unsigned long long>(made.bytes), made.pids.size());
  TimeShell("cat " + Quoted(dat) + " > /dev/null");  // into the page cache

  QuietPlatform quiet(folder);
  const double wc = Best(3, [&] { return TimeShell("wc -l < " + Quoted(dat) + " > /dev/null"); });
  MarkIndex built;
  const double build = Best(3, [&] { return Seconds([&] { BuildMarkIndex(dat, ndx, built, quiet.platform); }); });
  quiet.Check("build");
  const long peak = BuildPeakKilobytes(self, dat, ndx);

  testing::TestSession session;
  session.dataset.DatFile = dat;
  const double load = Best(5, [&] {
    return Seconds([&] {
      if (LoadDatasetIndex(session, quiet.platform)) throw std::runtime_error("the index was not taken as valid");
    });
  });
  quiet.Check("load");

  // 1,000 PIDs spread over the file, on the freshly loaded index (the first look-up pays for
  // the PID table of the joined records).
  std::vector<std::string> pids;
  for (std::size_t i = 0; i < 1000; ++i) pids.push_back(made.pids[(i * 7919) % made.pids.size()]);
  LoadDatasetIndex(session, quiet.platform);
  double first = 0;
  const double lookups = Seconds([&] {
    for (std::size_t i = 0; i < pids.size(); ++i) {
      std::string text;
      const double one = Seconds([&] {
        if (!GetDescription(session.dataset.markIndex, dat, pids[i], text).empty() || text.rfind("1      ", 0) != 0)
          throw std::runtime_error("look-up of " + pids[i] + " failed");
      });
      if (i == 0) first = one;
    }
  });

  double cp = 1e300, compress = 1e300;
  std::uint64_t compressed = 0;
  for (int run = 0; run < 3; ++run) {
    cp = std::min(cp, TimeShell("cp " + Quoted(dat) + " " + Quoted(work)));
    for (std::size_t i = 0; i < made.pids.size(); i += 100) BlankDescription(session.dataset.markIndex, work, made.pids[i]);
    compress = std::min(compress, Seconds([&] { CompressDataset(work, quiet.platform); }));
    compressed = FileLength(work);
  }
  quiet.Check("compression");
  std::filesystem::remove(work);

  std::printf("%-34s %10s     %-34s\n", "Operation", "figure", "target");
  Report("wc -l (baseline)", wc * 1000, "ms", "", true);
  Report("BuildMarkIndex", build * 1000, "ms", "<= 4 x wc -l and < 1500 ms",
         build <= 4 * wc && build < 1.5);
  Report("  ratio to wc -l", build / wc, "x", "<= 4", build <= 4 * wc);
  Report("Build peak memory", peak / 1024.0, "MB", "< 64 MB", peak < 64 * 1024);
  Report("LoadDatasetIndex (valid index)", load * 1000, "ms", "< 50 ms", load < 0.05);
  Report("1,000 x GetDescription", lookups * 1000, "ms", "< 100 ms", lookups < 0.1);
  Report("  of which the first look-up", first * 1000, "ms", "", true);
  Report("cp (baseline)", cp * 1000, "ms", "", true);
  Report("CompressDataset (1% blanked)", compress * 1000, "ms", "<= 4 x cp", compress <= 4 * cp);
  Report("  ratio to cp", compress / cp, "x", "<= 4", compress <= 4 * cp);
  std::printf("\nIndex: %zu records; compressed file %llu bytes\n", built.Size() - 2,
              static_cast<unsigned long long>(compressed));
  return 0;
}

}  // namespace
}  // namespace benchlog::bench

int main(int argc, char** argv) {
  try {
    if (argc == 4 && std::strcmp(argv[1], "--build-only") == 0) return benchlog::bench::BuildOnly(argv[2], argv[3]);
    const auto options = benchlog::bench::ReadBenchOptions(argc, argv, "benchlog-bench");
    return benchlog::bench::Run(argv[0], options.megabytes, options.folder);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "dataset_bench: %s\n", failure.what());
    return 1;
  }
}

// charcheck_bench [--mb N] [--dir FOLDER]: times the character check of a generated dataset of N
// megabytes (100 by default), from the first byte read to the report closed, with the progress
// bar stepped and events let through at every thousandth byte as in the program.
#include <cstdio>
#include <filesystem>
#include <string>

#include "bench_options.hpp"
#include "bench_timing.hpp"
#include "common/files.hpp"
#include "dataset_generator.hpp"
#include "fakes/fakes.hpp"
#include "view/character_check.hpp"

namespace benchlog::bench {
namespace {

int Run(std::uint64_t megabytes, const std::string& folder) {
  std::filesystem::create_directories(folder);
  const std::string source = folder + "/charcheck_source.dat";
  const std::uint64_t wanted = megabytes * 1000 * 1000;
  if (!FileExists(source) || FileLength(source) < wanted) GenerateDataset(source, wanted);
  const std::string report = CharacterReportName(source);
  ReadWholeFile(source);  // into the page cache

  testing::FakePlatform fake(folder);
  fake.progress.observer = nullptr;
  const double seconds = Best(3, [&] {
    fake.progress.value = 1;
    fake.progress.max = static_cast<int>(FileLength(source) / 1000);
    return Seconds([&] { CheckFileBytes(source, report, fake.progress, fake.ui); });
  });

  std::printf("file %.1f MB, report %.1f KB, %d event breaks a run\n",
              static_cast<double>(FileLength(source)) / 1e6, static_cast<double>(FileLength(report)) / 1e3,
              fake.ui.doEventsCalls / 3);
  std::printf("character check: %.2f s (target under 1 s) %s\n", seconds, seconds < 1 ? "met" : "MISSED");
  return seconds < 1 ? 0 : 1;
}

}  // namespace
}  // namespace benchlog::bench

int main(int argc, char** argv) {
  const auto options = benchlog::bench::ReadBenchOptions(argc, argv, "benchlog-bench");
  return benchlog::bench::Run(options.megabytes, options.folder);
}

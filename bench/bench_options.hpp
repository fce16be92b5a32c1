#pragma once
// The options every benchmark takes: "--mb N" for the dataset's size in megabytes (100 unless
// given) and "--dir FOLDER" for where the generated files go (a folder of the system's
// temporary folder unless given). Other options are left for the benchmark to read.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstdio>
#include <cstring>
#include <exception>
#include <filesystem>
#include <string>

#include "dataset/dataset_size_limit.hpp"
#include "dataset_generator.hpp"

namespace benchlog::bench {

struct BenchOptions {
  std::uint64_t megabytes = 100;
  std::string folder;
};

// The size of a benchmark's dataset: N megabytes, but always short of the dataset size limit, so
// that every look-up is exact; the default 100 gives a dataset just under it. The generator stops
// behind the Description that reaches its target, which leaves room for one.
inline std::uint64_t BenchDatasetBytes(std::uint64_t megabytes) {
  constexpr std::uint64_t kRoomForOneDescription = 64 * 1024;
  return std::min(megabytes * 1000 * 1000, kDatasetSizeLimit - kRoomForOneDescription);
}

// Generates the benchmark's dataset of `megabytes` at `path` (its folder made first), saying so.
inline GeneratedDataset GenerateBenchDataset(const std::string& path, std::uint64_t megabytes) {
  const std::filesystem::path folder = std::filesystem::path(path).parent_path();
  std::filesystem::create_directories(folder);
  std::printf("Generating %llu MB in %s ...\n", static_cast<unsigned long long>(megabytes), folder.c_str());
  return GenerateDataset(path, BenchDatasetBytes(megabytes));
}

inline BenchOptions ReadBenchOptions(int argc, char** argv, const char* defaultFolderName) {
  BenchOptions options;
  options.folder = (std::filesystem::temp_directory_path() / defaultFolderName).string();
  for (int i = 1; i + 1 < argc; i += 2) {
    if (std::strcmp(argv[i], "--mb") == 0) options.megabytes = std::strtoull(argv[i + 1], nullptr, 10);
    if (std::strcmp(argv[i], "--dir") == 0) options.folder = argv[i + 1];
  }
  return options;
}

// The main() of a benchmark: reads the options and runs `run(megabytes, folder)`; a failure is
// reported under the benchmark's name with exit status 2 (1 is left for a missed target).
template <class RunFunction>
int RunBenchmark(int argc, char** argv, const char* name, RunFunction run) {
  try {
    const BenchOptions options = ReadBenchOptions(argc, argv, "benchlog-bench");
    return run(options.megabytes, options.folder);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s: %s\n", name, failure.what());
    return 2;
  }
}

}  // namespace benchlog::bench

#pragma once
// The options every benchmark takes: "--mb N" for the dataset's size in megabytes (100 unless
// given) and "--dir FOLDER" for where the generated files go (a folder of the system's
// temporary folder unless given). Other options are left for the benchmark to read.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>

namespace benchlog::bench {

struct BenchOptions {
  std::uint64_t megabytes = 100;
  std::string folder;
};

inline BenchOptions ReadBenchOptions(int argc, char** argv, const char* defaultFolderName) {
  BenchOptions options;
  options.folder = (std::filesystem::temp_directory_path() / defaultFolderName).string();
  for (int i = 1; i + 1 < argc; i += 2) {
    if (std::strcmp(argv[i], "--mb") == 0) options.megabytes = std::strtoull(argv[i + 1], nullptr, 10);
    if (std::strcmp(argv[i], "--dir") == 0) options.folder = argv[i + 1];
  }
  return options;
}

}  // namespace benchlog::bench

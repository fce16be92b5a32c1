// make_dataset PATH MEGABYTES [SEED]: writes a realistic dataset of about that size.
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "dataset_generator.hpp"

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: make_dataset PATH MEGABYTES [SEED]\n");
    return 2;
  }
  try {
    const auto megabytes = std::strtoull(argv[2], nullptr, 10);
    const unsigned seed = argc > 3 ? static_cast<unsigned>(std::strtoul(argv[3], nullptr, 10)) : 1;
    const auto made = benchlog::bench::GenerateDataset(argv[1], megabytes * 1000 * 1000, seed);
    std::printf("%s: %llu bytes, %zu Descriptions\n", argv[1], static_cast<unsigned long long>(made.bytes),
                made.pids.size());
    return 0;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "make_dataset: %s\n", failure.what());
    return 1;
  }
}

#pragma once
// A generator of large, realistic datasets for the benchmarks: Descriptions with the sections a
// data sheet has (class lines, names, positions in both layouts, heights, accuracies, orders,
// notes, coordinate lines, box scores, superseded control, attributes, histories, recovery
// text), each a few kilobytes, with unique PIDs. The same seed gives the same file.
#include <cstdint>
#include <string>
#include <vector>

namespace benchlog::bench {

struct GeneratedDataset {
  std::uint64_t bytes = 0;
  std::vector<std::string> pids;  // in file order
};

// Writes Descriptions to `path` until it holds at least `targetBytes`. Throws RuntimeFailure when
// the file cannot be written.
GeneratedDataset GenerateDataset(const std::string& path, std::uint64_t targetBytes, unsigned seed = 1);

}  // namespace benchlog::bench

#pragma once
// The committed sample dataset, cut into its Descriptions, for the tests that check the support
// files against what the sample's data sheets name.
#include <string>
#include <vector>

namespace benchlog::test {

struct SampleDescription {
  std::string pid;                 // columns 2-7 of its data lines
  std::vector<std::string> lines;  // the header line first
};

// All lines of a file, read with the classic line input.
std::vector<std::string> ReadLines(const std::string& path);

// Reads support/samples/sample.dat line by line; a Description starts at each header line.
std::vector<SampleDescription> ReadSampleDataset();

}  // namespace benchlog::test

#include "sample_lines.hpp"

#include "common/line_input.hpp"
#include "common/text.hpp"
#include "fakes/test_paths.hpp"

namespace benchlog::test {

std::vector<std::string> ReadLines(const std::string& path) {
  LineReader reader(path);
  std::vector<std::string> lines;
  std::string line;
  while (reader.ReadLine(line)) lines.push_back(line);
  return lines;
}

std::vector<SampleDescription> ReadSampleDataset() {
  std::vector<SampleDescription> descriptions;
  LineReader reader(testing::SampleDataset());
  std::string line;
  while (reader.ReadLine(line)) {
    if (Left(line, 7) == "1      ") {
      descriptions.push_back({});
    } else if (!descriptions.empty() && descriptions.back().pid.empty()) {
      descriptions.back().pid = Mid(line, 2, 6);
    }
    if (!descriptions.empty()) descriptions.back().lines.push_back(line);
  }
  return descriptions;
}

}  // namespace benchlog::test

#include "export/export_test_support.hpp"

#include <gtest/gtest.h>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/text.hpp"
#include "fakes/test_paths.hpp"

namespace benchlog::testing {

SupportFiles& SourceSupportFiles() {
  static SupportFiles files;
  files.Refresh(SourceSupport(), {});
  return files;
}

std::vector<std::string> ExportFixtureLines(const std::string& name) {
  return SplitCrLf(ReadWholeFile(TestData("export/" + name)));
}

std::string DataLine(const std::string& pid, std::initializer_list<std::pair<std::size_t, std::string>> pieces) {
  std::string line = " " + pid;
  for (const auto& [column, text] : pieces) {
    EXPECT_GE(column, 8u);
    if (line.size() < column - 1 + text.size()) line.resize(column - 1 + text.size(), ' ');
    line.replace(column - 1, text.size(), text);
  }
  return line;
}

ParseResult Parse(const std::string& pid, const std::vector<std::string>& lines, std::size_t start,
                  const ParseGroups& groups) {
  ParseResult result;
  ClearMarkRecord(result.record);
  ParseDescription(pid, lines, start, groups, result.ErrMsg, result.record, SourceSupportFiles());
  return result;
}

std::string Field(const MarkRecord& record, const std::string& name) {
  const auto text = FieldText(record, name);
  EXPECT_TRUE(text.has_value()) << name;
  return text ? RTrim(*text) : std::string();
}

}  // namespace benchlog::testing

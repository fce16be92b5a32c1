#pragma once
// Helpers of the parser tests: fixture lines and tables, data lines built column by column, one
// parse with the support files of the source tree.
#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/text.hpp"
#include "export/parser/mark_record.hpp"
#include "export/parser/parse_description.hpp"
#include "fakes/test_paths.hpp"
#include "fakes/test_rows.hpp"

namespace benchlog::testing {

inline SupportFiles& SourceSupportFiles() {
  static SupportFiles files;
  files.Refresh(SourceSupport(), {});
  return files;
}

// The lines of a file of tests/data/export, split at CR LF.
inline std::vector<std::string> ExportFixtureLines(const std::string& name) {
  return SplitCrLf(ReadWholeFile(TestData("export/" + name)));
}

// A data line of `pid`: ' ' in column 1, the PID in 2 to 7, then each text at its 1-based
// column (8 or more), blanks between them.
inline std::string DataLine(const std::string& pid, std::initializer_list<std::pair<std::size_t, std::string>> pieces) {
  std::string line = " " + pid;
  for (const auto& [column, text] : pieces) {
    EXPECT_GE(column, 8u);
    if (line.size() < column - 1 + text.size()) line.resize(column - 1 + text.size(), ' ');
    line.replace(column - 1, text.size(), text);
  }
  return line;
}

struct ParseResult {
  MarkRecord record;
  std::string ErrMsg;
};

// ClearMarkRecord and ParseDescription of `pid` over `lines` from index `start`.
inline ParseResult Parse(const std::string& pid, const std::vector<std::string>& lines, std::size_t start = 0,
                         const ParseGroups& groups = {}) {
  ParseResult result;
  ClearMarkRecord(result.record);
  ParseDescription(pid, lines, start, groups, result.ErrMsg, result.record, SourceSupportFiles());
  return result;
}

// The field called `name`, trimmed of the blanks on its right.
inline std::string Field(const MarkRecord& record, const std::string& name) {
  const auto text = FieldText(record, name);
  EXPECT_TRUE(text.has_value()) << name;
  return text ? RTrim(*text) : std::string();
}

}  // namespace benchlog::testing

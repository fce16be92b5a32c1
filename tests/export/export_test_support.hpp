#pragma once
// Helpers of the parser tests: fixture lines, data lines built column by column, one parse.
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "export/parser/mark_record.hpp"
#include "export/parser/parse_description.hpp"

namespace benchlog::testing {

// The support tables of that folder.
SupportFiles& SourceSupportFiles();

// The lines of a file of tests/data/export, split at CR LF.
std::vector<std::string> ExportFixtureLines(const std::string& name);

// A data line of `pid`: ' ' in column 1, the PID in 2 to 7, then each text at its 1-based
// column (8 or more), blanks between them.
std::string DataLine(const std::string& pid, std::initializer_list<std::pair<std::size_t, std::string>> pieces);

struct ParseResult {
  MarkRecord record;
  std::string ErrMsg;
};

// ClearMarkRecord and ParseDescription of `pid` over `lines` from index `start`, with the support
// files of the source tree.
ParseResult Parse(const std::string& pid, const std::vector<std::string>& lines, std::size_t start = 0,
                  const ParseGroups& groups = {});

// The field called `name`, trimmed of the blanks on its right.
std::string Field(const MarkRecord& record, const std::string& name);

}  // namespace benchlog::testing

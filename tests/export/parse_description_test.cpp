// The parser against the cases of tests/data/export/parse_cases.txt (single lines and whole
// Descriptions with the fields each must give, under the groups of lines to read), then what a
// table cannot say: where the scan starts and ends, and what the entry blanks.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "common/files.hpp"
#include "common/text.hpp"
#include "export/export_test_support.hpp"
#include "fakes/test_paths.hpp"
#include "fakes/test_rows.hpp"

namespace benchlog::testing {
namespace {

using Lines = std::vector<std::string>;
const std::string P = "AB1234";

struct ParseCase {
  std::string name;  // for a record, its PID
  bool record = false;
  Lines lines;
  std::vector<std::pair<std::string, std::string>> fields;
  ParseGroups groups;
  std::size_t start = 0;
  std::string errMsg;
};

std::vector<ParseCase> ReadCases() {
  std::vector<ParseCase> cases;
  for (const std::string& line : Split(ReadWholeFile(TestData("export/parse_cases.txt")), "\n")) {
    if (line.empty() || line[0] == '#') continue;
    if (line.rfind("case ", 0) == 0 || line.rfind("record ", 0) == 0) {
      cases.push_back({line.substr(line.find(' ') + 1), line[0] == 'r', {}, {}, {}, 0, {}});
    } else if (line[0] == '"') {
      cases.back().lines.push_back(line.substr(1, line.size() - 2));
    } else if (line.rfind("groups=", 0) == 0) {
      cases.back().groups = {line[7] == '1', line[8] == '1', line[9] == '1'};
    } else if (line.rfind("start=", 0) == 0) {
      cases.back().start = std::stoul(line.substr(6));
    } else if (line.rfind("ErrMsg=", 0) == 0) {
      cases.back().errMsg = line.substr(7);
    } else {
      const std::size_t equals = line.find('=');
      cases.back().fields.emplace_back(line.substr(0, equals), Unescape(line.substr(equals + 1)));
    }
  }
  return cases;
}

// The index of the line after the header line that opens the Description of `pid`.
std::size_t StartOf(const Lines& lines, const std::string& pid) {
  for (std::size_t i = 0; i + 1 < lines.size(); ++i)
    if (Left(lines[i], 1) == "1" && Mid(lines[i + 1], 2, 6) == pid) return i + 1;
  ADD_FAILURE() << "no Description " << pid;
  return 0;
}

TEST(ParseDescription, GivesTheFieldsOfEachCase) {
  const auto cases = ReadCases();
  ASSERT_EQ(cases.size(), 150u);
  const Lines fixture = ExportFixtureLines("descriptions.dat");
  for (const ParseCase& c : cases) {
    const auto result = c.record ? Parse(c.name, fixture, StartOf(fixture, c.name)) : Parse(P, c.lines, c.start, c.groups);
    EXPECT_EQ(result.ErrMsg, c.errMsg) << c.name;
    for (const auto& [name, value] : c.fields) {
      ASSERT_TRUE(FieldText(result.record, name)) << c.name << ": no field " << name;
      EXPECT_EQ(Field(result.record, name), value) << c.name << ": " << name;
    }
    if (!c.record) continue;
    VisitFields(result.record, [&](std::string_view name, const auto&) {
      const bool listed = std::any_of(c.fields.begin(), c.fields.end(), [&](const auto& f) { return f.first == name; });
      if (!listed) {
        EXPECT_EQ(Field(result.record, std::string(name)), "") << c.name << ": " << name;
      }
    });
  }
}

// Over whole Descriptions: the scan passes over the ones before the mark's, and the next
// Description's lines never reach the record.
TEST(ParseDescription, ScanPassesOverEarlierLinesAndEndsAtTheNextDescription) {
  const Lines lines = ExportFixtureLines("descriptions.dat");
  const auto fromStart = Parse("AA4004", lines, 0);
  EXPECT_EQ(fromStart.ErrMsg, "");
  EXPECT_EQ(Field(fromStart.record, "Pid"), "AA4004");
  EXPECT_EQ(Field(fromStart.record, "HorizOrder"), "3");
  EXPECT_EQ(Field(fromStart.record, "Latitude"), "350001.2");
  EXPECT_EQ(Parse("AA1001", lines, StartOf(lines, "AA2002")).ErrMsg, "Data not found!");
  const auto missing = Parse("ZZ9999", lines);
  EXPECT_EQ(missing.ErrMsg, "Data not found!");
  EXPECT_EQ(Field(missing.record, "RecordKind"), "R");
  EXPECT_EQ(Field(missing.record, "Pid"), "");
}

TEST(ParseDescription, EntryBlanksEpochNetAndReporterOnly) {
  MarkRecord record;
  record.Net = "XY";
  record.Epoch = "1997.0";
  record.LastReporter = "ABC";
  record.Quad = "OLD QUAD";
  std::string ErrMsg = "untouched";
  const Lines lines = {DataLine(P, {{10, "CBN"}, {22, "-"}})};
  ParseDescription(P, lines, 0, {}, ErrMsg, record, SourceSupportFiles());
  EXPECT_EQ(ErrMsg, "untouched");
  EXPECT_EQ(Field(record, "RecordKind"), "R");
  EXPECT_EQ(Field(record, "Net"), "B");
  EXPECT_EQ(Field(record, "Epoch"), "");
  EXPECT_EQ(Field(record, "LastReporter"), "");
  EXPECT_EQ(Field(record, "Quad"), "OLD QUAD");
}

}  // namespace
}  // namespace benchlog::testing

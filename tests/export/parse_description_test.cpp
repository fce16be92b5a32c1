// The parser against the cases of tests/data/export/parse_cases.txt (single lines and whole
// Descriptions with the fields each must give), then what a table cannot say: the groups left
// out, where the scan starts and ends, and the text's paragraphs.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "common/files.hpp"
#include "common/text.hpp"
#include "export/export_test_support.hpp"
#include "fakes/test_paths.hpp"

namespace benchlog::testing {
namespace {

using Lines = std::vector<std::string>;
const std::string P = "AB1234";

struct ParseCase {
  std::string name;  // for a record, its PID
  bool record = false;
  Lines lines;
  std::vector<std::pair<std::string, std::string>> fields;
};

std::string Unescape(const std::string& text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\' || i + 1 == text.size()) {
      out += text[i];
      continue;
    }
    const char next = text[++i];
    out += next == 'r' ? '\r' : next == 'n' ? '\n' : next;
  }
  return out;
}

std::vector<ParseCase> ReadCases() {
  std::vector<ParseCase> cases;
  for (const std::string& line : Split(ReadWholeFile(TestData("export/parse_cases.txt")), "\n")) {
    if (line.empty() || line[0] == '#') continue;
    if (line.rfind("case ", 0) == 0 || line.rfind("record ", 0) == 0) {
      cases.push_back({line.substr(line.find(' ') + 1), line[0] == 'r', {}, {}});
    } else if (line[0] == '"') {
      cases.back().lines.push_back(line.substr(1, line.size() - 2));
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
  ASSERT_EQ(cases.size(), 137u);
  const Lines fixture = ExportFixtureLines("descriptions.dat");
  for (const ParseCase& c : cases) {
    const auto result = c.record ? Parse(c.name, fixture, StartOf(fixture, c.name)) : Parse(P, c.lines);
    EXPECT_EQ(result.ErrMsg, "") << c.name;
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

TEST(ParseDescription, HorizontalAndVerticalControlOfTheRecords) {
  const Lines lines = ExportFixtureLines("descriptions.dat");
  struct Case {
    std::string pid;
    bool horizontal, vertical;
  };
  const Case cases[] = {{"AA1001", true, true},   {"AA2002", true, true},  {"AA3003", false, false},
                        {"AA4004", true, true},   {"AA5005", true, false}, {"AA6006", false, false}};
  for (const auto& c : cases) {
    const auto result = Parse(c.pid, lines, StartOf(lines, c.pid));
    EXPECT_EQ(HasHorizontalControl(result.record), c.horizontal) << c.pid;
    EXPECT_EQ(HasVerticalControl(result.record), c.vertical) << c.pid;
  }
}

// Lines before the mark's first line are passed over; the scan ends at the first line of
// another PID after it, so the next Description's lines never reach the record.
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

  const Lines other = {DataLine("ZZ0001", {{10, "PID         -"}, {25, "ZZ0001"}}),
                       DataLine(P, {{10, "PID         -"}, {25, P}}), DataLine("ZZ0002", {{10, "CBN"}}),
                       DataLine(P, {{10, "FBN"}, {22, "-"}})};
  const auto result = Parse(P, other);
  EXPECT_EQ(result.ErrMsg, "");
  EXPECT_EQ(Field(result.record, "Pid"), P);
  EXPECT_EQ(Field(result.record, "Net"), "");
  const auto fromIndex = Parse(P, other, 3);
  EXPECT_EQ(Field(fromIndex.record, "Net"), "A");
  EXPECT_EQ(Field(fromIndex.record, "Pid"), "");
  EXPECT_EQ(Parse(P, other, 4).ErrMsg, "Data not found!");
  EXPECT_EQ(Parse(P, {}).ErrMsg, "Data not found!");
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

TEST(ParseDescription, LinesOfAGroupLeftOutAreSkipped) {
  const Lines lines = {
      DataLine(P, {{10, "DESIGNATION -"}, {25, "HILL"}}),
      DataLine(P, {{10, "STATE/COUNTY-"}, {25, "NC/WAKE"}}),
      DataLine(P, {{8, "* NAD 83(1986)"}, {22, "-"}, {25, "36 03 42.56888"}, {39, "(N)"}, {46, "079 07 18.55999"},
                   {61, "(W)"}, {69, "ADJUSTED"}}),
      DataLine(P, {{8, "_MARKER: "}, {17, "57"}, {20, "= WATER TANK"}}),
      DataLine(P, {{10, "HISTORY"}, {22, "-"}, {24, "1990"}, {33, "GOOD"}, {50, "OCO"}}),
      DataLine(P, {{8, "'DESCRIBED BY ORBIS CONTROL OFFICE 1990 (AB)"}}),
  };
  struct Case {
    ParseGroups groups;
    std::string designation, state, latitude, markerCode, type, lastDate, text, history;
  };
  const std::string text = "DESCRIBED BY ORBIS CONTROL OFFICE 1990 (AB)";
  const Case cases[] = {
      {{true, true, true}, "HILL", "NC", "360342.56888", "57", "I", "1990", text, "1990    GOCO   AB"},
      {{false, true, true}, "HILL", "NC", "", "57", "", "1990", text, "1990    GOCO   AB"},
      {{true, false, true}, "HILL", "", "360342.56888", "", "", "1990", text, "1990    GOCO   AB"},
      {{true, true, false}, "HILL", "NC", "360342.56888", "57", "I", "1990", "", ""},
  };
  for (const auto& c : cases) {
    const auto result = Parse(P, lines, 0, c.groups);
    EXPECT_EQ(Field(result.record, "Designation"), c.designation);
    EXPECT_EQ(Field(result.record, "State"), c.state);
    EXPECT_EQ(Field(result.record, "Latitude"), c.latitude);
    EXPECT_EQ(Field(result.record, "MarkerCode"), c.markerCode);
    EXPECT_EQ(Field(result.record, "HorizType"), c.type);
    EXPECT_EQ(Field(result.record, "LastDate"), c.lastDate);
    EXPECT_EQ(Field(result.record, "DescriptiveText"), c.text + (c.text.empty() ? "" : "\r\n"));
    EXPECT_EQ(Field(result.record, "HistoryTable"), c.history);
  }
  // A landmark read with the position group alone: the marker's code is not taken, so the type
  // stays; with both groups the category gives "I".
  const Lines marker = {lines[3]};
  EXPECT_EQ(Field(Parse(P, marker, 0, {true, true, true}).record, "HorizType"), "I");
  EXPECT_EQ(Field(Parse(P, marker, 0, {false, true, true}).record, "HorizType"), "");
  EXPECT_EQ(Field(Parse(P, marker, 0, {true, false, true}).record, "HorizType"), "");
}

TEST(ParseDescription, HistoryKeepsAtMostFiftyRows) {
  Lines lines;
  for (int year = 1901; year <= 1960; ++year)
    lines.push_back(DataLine(P, {{10, "HISTORY"}, {22, "-"}, {24, std::to_string(year)}, {33, "GOOD"}, {50, "OCO"}}));
  const auto result = Parse(P, lines);
  const std::string table(*FieldText(result.record, "HistoryTable"));
  EXPECT_EQ(table.substr(49 * 18, 18), "1950    GOCO      ");
  EXPECT_EQ(Field(result.record, "LastDate"), "1960");
}

TEST(ParseDescription, TextParagraphsAndStationRecovery) {
  const auto result =
      Parse(P, {DataLine(P, {{8, "'"}, {9, "  FIRST LINE  "}}), DataLine(P, {{8, "'"}, {80, " "}}),
                DataLine(P, {{8, "'"}, {9, "SECOND"}}), DataLine(P, {{34, "STATION RECOVERY (1999)"}}),
                DataLine(P, {{8, "'"}, {9, "THIRD"}, {81, "CUT"}}), DataLine(P, {{8, "'"}})});
  EXPECT_EQ(*FieldText(result.record, "DescriptiveText"),
            "FIRST LINE \r\n\r\nSECOND \r\n\r\nTHIRD \r\n\r\n" + std::string(4900 - 36, ' '));
}

}  // namespace
}  // namespace benchlog::testing

// The support files: the fixtures' readers and the committed tables against the sources they are made from.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/number_text.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "export/parser/note_header.hpp"
#include "fakes/test_rows.hpp"
#include "sample_lines.hpp"
#include "support_files/contributors.hpp"
#include "support_files/country_file.hpp"
#include "support_files/monument_category.hpp"
#include "support_files/towns_file.hpp"

namespace benchlog {
namespace {

std::string Committed() { return testing::SourceSupport() + kCountryFileName; }

TEST(CommittedCountryFile, EveryStateAndTerritoryHasItsCounties) {
  const FipsIndex index(Committed());
  const auto states = CountryStateList(Committed());
  ASSERT_EQ(states.size(), 57u);  // 50 states, DC and six territories
  EXPECT_EQ(states.front(), "AK ALASKA");
  std::set<std::string> codes;
  for (const auto& state : states) {
    const std::string code = state.substr(0, 2);
    EXPECT_TRUE(codes.insert(code).second) << "twice: " << state;
    const auto counties = CountryCountyList(Committed(), code);
    EXPECT_FALSE(counties.empty()) << state;
    for (const auto& county : counties) {
      const std::string fips = index.LookUp(code, county);
      ASSERT_EQ(fips.size(), 3u) << code << "/" << county;
      EXPECT_NE(fips, "000") << code << "/" << county;
    }
  }
  EXPECT_EQ(CountryCountyList(Committed(), "NC").size(), 100u);
}

TEST(CommittedMonumentCategory, EveryMarkerCodeOfTheSampleHasACategory) {
  std::set<std::string> codes;
  for (const auto& description : test::ReadSampleDataset()) {
    for (const auto& line : description.lines) {
      if (Mid(line, 8, 9) == "_MARKER: ") codes.insert(RTrim(Mid(line, 17, 2)));
    }
  }
  ASSERT_GE(codes.size(), 12u);
  const CategoryTable table = ReadCategoryTable(testing::SourceSupport() + kMonumentCategoryFileName);
  for (const auto& code : codes) {
    const std::string category = MonumentCategory(table, code);
    EXPECT_EQ(category.size(), 1u) << "marker code " << code;
    const bool landmark = code.size() == 2 && IsNumeric(code) && code != "71";
    EXPECT_EQ(category == "L", landmark) << "marker code " << code;
  }
}

TEST(CommittedContributors, CodesFitSixColumnsAndGroupsAreKnown) {
  std::set<std::string> groups;
  LineReader groupsFile(testing::SourceSupport() + "Groups.dat");
  std::string line;
  while (groupsFile.ReadLine(line)) groups.insert(Trim(Mid(line, 1, 6)));
  const auto lines = SplitCrLf(ReadWholeFile(testing::SourceSupport() + kContributorsFileName));
  ASSERT_GT(lines.size(), 100u);
  for (const auto& entry : lines) {
    if (entry.empty()) continue;
    EXPECT_NE(Mid(entry, 1, 1), " ") << entry;
    EXPECT_EQ(Mid(entry, 7, 1), " ") << entry;
    EXPECT_EQ(Mid(entry, 14, 1), " ") << entry;
    EXPECT_EQ(groups.count(Trim(Mid(entry, 8, 6))), 1u) << entry;
  }
}

// The agency of an adjustment phrase: the text after "adjusted by the " up to " in ", with the
// next line's text from column 9 added when the line has no " in " (the phrase wraps).
std::string AdjustingAgency(const std::vector<std::string>& lines, std::size_t i) {
  std::string text = lines[i];
  if (InStr(text, " in ") == 0 && i + 1 < lines.size()) text += Mid(lines[i + 1], 9);
  const std::size_t from = InStr(text, "adjusted by the ") + 16;
  const std::size_t to = InStr(text, " in ", from);
  return to ? Trim(Mid(text, from, to - from)) : "";
}

TEST(CommittedContributors, ResolveEveryAgencyOfTheSampleNotes) {
  const auto table = ContributorTable::Load(testing::SourceSupport() + kContributorsFileName);
  std::size_t headers = 0, phrases = 0;
  for (const auto& description : test::ReadSampleDataset()) {
    const auto& lines = description.lines;
    std::vector<std::string> historyAgencies;
    for (std::size_t i = 0; i < lines.size(); ++i) {
      const std::string& line = lines[i];
      if (Mid(line, 8, 9) == "  HISTORY" && Mid(line, 24, 4) != "Date") historyAgencies.push_back(Trim(Mid(line, 50, 6)));
      const std::string text = Mid(line, 9, 72);
      if (Mid(line, 8, 1) == "'" &&
          (Trim(Mid(text, 1, 12)) == "DESCRIBED BY" || Trim(Mid(text, 1, 16)) == "RECOVERY NOTE BY")) {
        const NoteHeader header = SplitNoteHeader(text, table);
        EXPECT_FALSE(header.agencyCode.empty()) << description.pid << ": " << header.agencyName;
        // The writers of the notes are the agencies of the history rows.
        EXPECT_NE(std::find(historyAgencies.begin(), historyAgencies.end(), header.agencyCode),
                  historyAgencies.end()) << description.pid << ": " << header.agencyName;
        ++headers;
      }
      if (Mid(line, 8, 1) == "." && InStr(line, "adjusted by the ")) {
        const std::string agency = AdjustingAgency(lines, i);
        EXPECT_FALSE(table.CodeOf(agency).empty()) << description.pid << ": '" << agency << "'";
        ++phrases;
      }
    }
    for (const auto& code : historyAgencies) {
      EXPECT_TRUE(code.size() <= 6 && !code.empty()) << description.pid;
    }
  }
  EXPECT_GE(headers, 100u);
  EXPECT_GE(phrases, 30u);
}

std::vector<std::string> Lines(const std::string& name) { return test::ReadLines(testing::SourceSupport() + name); }

TEST(SmallTables, EllipsoidsHoldTheirAxisAndFlattening) {
  const auto lines = Lines("Ellipsoid.dat");
  for (const auto& c : testing::ReadRows("support/ellipsoids.txt", 4, '|')) {
    bool found = false;
    for (const auto& line : lines) {
      if (Trim(Mid(line, 1, 12)) != c[0]) continue;
      found = true;
      EXPECT_DOUBLE_EQ(Val(Mid(line, 14, 14)), std::stod(c[1])) << line;
      EXPECT_DOUBLE_EQ(Val(Mid(line, 29, 15)), std::stod(c[2])) << line;
    }
    EXPECT_TRUE(found) << c[0];
  }
}

TEST(SmallTables, DatumsNameKnownEllipsoidsAndTheSampleRealizations) {
  std::vector<std::string> ellipsoids;
  for (const auto& line : Lines("Ellipsoid.dat")) ellipsoids.push_back(Trim(Mid(line, 1, 12)));
  std::vector<std::string> datums;
  for (const auto& line : Lines("Horizontal_Datum.dat")) {
    datums.push_back(Trim(Mid(line, 1, 18)));
    EXPECT_NE(std::find(ellipsoids.begin(), ellipsoids.end(), Trim(Mid(line, 20, 12))), ellipsoids.end()) << line;
  }
  for (const char* datum : {"NAD 83(1986)", "NAD 83(1993)", "NAD 83(2001)", "NAD 83(NSRS2007)", "NAD 83(2011)",
                            "NAD 27"}) {
    EXPECT_NE(std::find(datums.begin(), datums.end(), datum), datums.end()) << datum;
  }
}

constexpr double kSecond = 1.0 / 3600.0;

std::vector<std::string> CommittedTowns() { return test::ReadLines(testing::SourceSupport() + kTownsFileName); }

TEST(CommittedTowns, SortedAndNoTwoAlikeInTheirFirst32Columns) {
  const auto lines = CommittedTowns();
  ASSERT_EQ(lines.size(), 32187u);  // every populated place of the Census table
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::string& line = lines[i];
    ASSERT_EQ(line.size(), 42u) << line;
    EXPECT_EQ(line[28], ' ') << line;  // names end by column 28, so the plot shows them whole
    EXPECT_NE(line[0], ' ') << line;
    if (i > 0) {
      EXPECT_LT(lines[i - 1], line);  // ordinal, as the towns command sorts
      EXPECT_NE(lines[i - 1].substr(0, 32), line.substr(0, 32)) << line;
    }
  }
}

// Every place of the table has a line within half a second of its position.
TEST(CommittedTowns, PositionsReadBackToTheSecond) {
  const auto lines = CommittedTowns();
  for (const auto& c : testing::ReadRows("support/census_towns.txt", 12, '|')) {
    bool near = false;
    for (const auto& line : lines) {
      const TownLine town = ReadTownLine(line);
      near = near || (line.rfind(c[0], 0) == 0 && std::fabs(town.latitude - std::stod(c[1])) <= 0.5 * kSecond + 1e-9 &&
                      std::fabs(town.longitude - std::stod(c[2])) <= 0.5 * kSecond + 1e-9);
    }
    EXPECT_TRUE(near) << c[0] << ": no line at the position";
  }
}

}  // namespace
}  // namespace benchlog

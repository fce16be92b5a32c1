// The committed sample dataset and support tables against the sources they are made from.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <set>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/number_text.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "export/parser/note_header.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_rows.hpp"
#include "fakes/test_paths.hpp"
#include "support_files/contributors.hpp"
#include "support_files/country_file.hpp"
#include "support_files/monument_category.hpp"
#include "support_files/towns_file.hpp"

namespace benchlog {
namespace {

// The committed sample dataset, cut into its Descriptions.
struct SampleDescription {
  std::string pid;                 // columns 2-7 of its data lines
  std::vector<std::string> lines;  // the header line first
};

// All lines of a file, read with the classic line input.
std::vector<std::string> ReadLines(const std::string& path) {
  LineReader reader(path);
  std::vector<std::string> lines;
  for (std::string line; reader.ReadLine(line);) lines.push_back(line);
  return lines;
}

// Reads support/samples/sample.dat line by line; a Description starts at each header line.
std::vector<SampleDescription> ReadSampleDataset() {
  std::vector<SampleDescription> descriptions;
  for (const std::string& line : ReadLines(testing::SampleDataset())) {
    if (Left(line, 7) == "1      ") {
      descriptions.push_back({});
    } else if (!descriptions.empty() && descriptions.back().pid.empty()) {
      descriptions.back().pid = Mid(line, 2, 6);
    }
    if (!descriptions.empty()) descriptions.back().lines.push_back(line);
  }
  return descriptions;
}

TEST(SampleDataset, DescriptionsOneAfterAnotherInCrLfLines) {
  const std::string text = ReadWholeFile(testing::SampleDataset());
  ASSERT_FALSE(text.empty());
  EXPECT_EQ(text.rfind("\r\n"), text.size() - 2);
  const std::string lines = ReplaceAll(text, "\r\n", "");  // no lone CR or LF, only printable bytes
  EXPECT_TRUE(std::all_of(lines.begin(), lines.end(), [](char c) { return c >= ' ' && c <= '~'; }));
  EXPECT_EQ(Left(text, 7), "1      ");
}

TEST(SampleDataset, EveryDataLineCarriesItsDescriptionsPid) {
  const auto descriptions = ReadSampleDataset();
  ASSERT_GE(descriptions.size(), 40u);
  std::set<std::string> pids;
  for (const auto& d : descriptions) {
    EXPECT_TRUE(pids.insert(d.pid).second) << d.pid;
    bool pidLine = false;
    for (std::size_t i = 1; i < d.lines.size(); ++i) {
      const std::string& line = d.lines[i];
      EXPECT_EQ(Mid(line, 1, 1), " ") << line;
      EXPECT_EQ(Mid(line, 2, 6), d.pid) << line;
      // Lines keep to 80 columns, but for a position whose long source word starts in column 69.
      if (Mid(line, 8, 8) != "* NAD 83") {
        EXPECT_LE(line.size(), 80u) << line;
      }
      if (Mid(line, 10, 15) == "PID         -  ") pidLine = Mid(line, 25, 6) == d.pid;
    }
    EXPECT_TRUE(pidLine) << d.pid;
  }
}

TEST(SampleDataset, CoversTheKindsOfMarksAndLines) {
  std::map<std::string, int> seen;
  for (const auto& d : ReadSampleDataset()) {
    for (const auto& line : d.lines) {
      const std::string key = Mid(line, 10, 12);
      for (const char* cls : {"CORS ", "FBN ", "CBN ", "HT_MOD ", "PACS ", "SACS "}) {
        if (StartsWith(key, cls) && Mid(line, 22, 1) == "-") ++seen[cls];
      }
      if (Mid(line, 8, 9) == "* NAD 83(") ++seen[Mid(line, 26, 1) == "-" ? "long position" : "position"];
      if (Mid(line, 8, 1) == "*" && Mid(line, 10, 7) == "NAVD 88") ++seen["height"];
      if (Mid(line, 8, 1) == "*") ++seen["source " + Trim(Mid(line, 69))];
      if (Mid(line, 8, 9) == "  HISTORY" && Mid(line, 24, 4) != "Date") ++seen["condition " + Trim(Mid(line, 33, 17))];
      if (Mid(line, 8, 2) == "| " && !IsBlank(Mid(line, 13, 3))) {
        ++seen[InStr(Mid(line, 17, 30), " RM ") ? "box RM" : InStr(line, "APPROX") ? "box approx" : "box other"];
      }
      if (Mid(line, 34, 25) == "SUPERSEDED SURVEY CONTROL") ++seen["superseded"];
      if (Mid(line, 10, 15) == "HORZ ORDER  -  ") ++seen["horizontal"];
      if (Mid(line, 10, 15) == "VERT ORDER  -  " && Mid(line, 35, 6) == "CLASS ") ++seen["vertical class"];
      if (Mid(line, 10, 13) == "VERT ORDER  -" && Mid(line, 27, 6) == "POSTED") ++seen["posted"];
      if (InStr(line, "and adjusted by") && InStr(line, "horizontal coordinates")) ++seen["adjusted phrase"];
      if (InStr(line, "established by GPS")) ++seen["by GPS"];
    }
  }
  for (const auto& row : testing::ReadRows("support/sample_kinds.txt", 43, '|')) EXPECT_GT(seen[row[0]], 0) << row[0];
}

TEST(SampleDataset, CountiesAreInTheCountryFileAndPhotosLieBeside) {
  const FipsIndex index(testing::SourceSupport() + kCountryFileName);
  int photos = 0, sketches = 0;
  for (const auto& d : ReadSampleDataset()) {
    for (const auto& line : d.lines) {
      if (Mid(line, 10, 15) != "STATE/COUNTY-  ") continue;
      const std::string fips = index.LookUp(Mid(line, 25, 2), Trim(Mid(line, 28, 20)));
      EXPECT_EQ(fips.size(), 3u) << line;
    }
    const std::string folder = testing::SourceSupport() + "samples/";
    for (const char* suffix : {"ph.jpg", "sk.jpg"}) {
      const std::string path = folder + d.pid + suffix;
      if (!FileExists(path)) continue;
      (suffix[0] == 'p' ? photos : sketches)++;
      EXPECT_EQ(Left(ReadWholeFile(path), 3), "\xFF\xD8\xFF") << path << " is no JPEG image";
    }
  }
  EXPECT_GE(photos, 3);
  EXPECT_GE(sketches, 3);
}

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
  for (const auto& description : ReadSampleDataset()) {
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
  for (const auto& description : ReadSampleDataset()) {
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
    for (const auto& code : historyAgencies) EXPECT_FALSE(code.empty()) << description.pid;
  }
  EXPECT_GE(headers, 100u);
  EXPECT_GE(phrases, 30u);
}

std::vector<std::string> Lines(const std::string& name) { return ReadLines(testing::SourceSupport() + name); }

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

TEST(CommittedTowns, SortedAndNoTwoAlikeInTheirFirst32Columns) {
  const auto lines = Lines(kTownsFileName);
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
  const auto lines = Lines(kTownsFileName);
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

// The generators of tools/ run again into a scratch folder must write the committed files byte
// for byte: the files in support/ are what the tools make from the source tables.
TEST(SupportGenerators, AreDeterministic) {
  ASSERT_EQ(std::system("python3 --version > /dev/null 2>&1"), 0) << "python3 is not installed";
  const std::string data = testing::SourceTables();
  ASSERT_TRUE(FolderExists(data)) << "no source tables at " << data;
  const testing::TempFolder out;
  for (const auto& c : testing::ReadRows("support/generators.txt", 8)) {
    const std::string command = "python3 -B '" BENCHLOG_SOURCE_DIR "/tools/" + c[0] + "' --data '" + data + "' --out '" +
                                out.Path() + "' > /dev/null";
    ASSERT_EQ(std::system(command.c_str()), 0) << command;
    EXPECT_TRUE(ReadWholeFile(out.File(c[1])) == ReadWholeFile(testing::SourceSupport() + c[1]))
        << c[1] << " differs from what " << c[0] << " makes";
  }
}

}  // namespace
}  // namespace benchlog

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "support_files/contributors.hpp"
#include "export/parser/note_header.hpp"
#include "sample_lines.hpp"
#include "fakes/test_paths.hpp"

namespace benchlog {
namespace {

TEST(Contributors, NamesAreFoundWhateverTheirCaseAndBlanks) {
  const auto table = ContributorTable::Load(testing::TestData("support/") + kContributorsFileName);
  struct Case { const char* name; const char* code; };
  const Case cases[] = {
      {"ORBIS CONTROL OFFICE", "OCO"},   {"Orbis Control Office", "OCO"},  // the first line wins over XXX
      {"  orbis   control office ", "OCO"}, {"US POWER SQUADRON", "USPSQD"},  // doubled blanks in the file
      {"north carolina geodetic survey", "NCGS"},
      {"COASTAL CONTROL OFFICE", ""},    // only "US COASTAL CONTROL OFFICE" is in the fixture
      {"NAME", ""},                      // the comment line is no entry
      {"", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(table.CodeOf(c.name), c.code) << c.name;
  EXPECT_EQ(table.Size(), 4u);
  EXPECT_EQ(table.GroupOf("Us Power Squadron"), "VOLUN");
  EXPECT_EQ(ContributorCode(testing::TestData("support/"), "us coastal control office"), "CCO");
}

TEST(Contributors, MissingFileIsAFileNotFoundFailure) {
  try {
    ContributorCode(testing::TestData("support/") + "nowhere/", "OCO");
    ADD_FAILURE() << "no failure";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.number, kFileNotFound);
  }
}

TEST(NoteHeader, SplitsAgencyYearAndInitials) {
  const auto table = ContributorTable::FromText(
      "CCO    FED    US COASTAL CONTROL OFFICE\r\nUSPSQD VOLUN  US POWER SQUADRON\r\n"
      "GEOCAC VOLUN  GEOCACHING\r\n");
  struct Case { const char* text; const char* name; const char* code; const char* year; const char* initials; };
  const Case cases[] = {
      {"DESCRIBED BY COASTAL CONTROL OFFICE 1933 (RDH)", "US COASTAL CONTROL OFFICE", "CCO", "1933", "RDH "},
      {"RECOVERY NOTE BY US COASTAL CONTROL OFFICE 1954 (ELJ)", "US COASTAL CONTROL OFFICE", "CCO", "1954",
       "ELJ "},
      {"RECOVERY NOTE BY US POWER SQUADRON 2004", "US POWER SQUADRON", "USPSQD", "2004", ""},
      // The text as the parser passes it: columns 9 to 80, blanks behind.
      {"RECOVERY NOTE BY GEOCACHING 2006 (PFF)                    ", "GEOCACHING", "GEOCAC", "2006", "PFF "},
      {"DESCRIBED BY ACME SURVEYS 1999 (J.B.)", "ACME SURVEYS", "", "1999", "J.B. "},
      // "19X1" is no number, so it joins the name; the later year word wins.
      {"RECOVERY NOTE BY NEW 19X1 AGENCY 1980 1981", "NEW 19X1 AGENCY", "", "1981", ""},
      {"DESCRIBED BY", "", "", "", ""},
  };
  for (const auto& c : cases) {
    const NoteHeader header = SplitNoteHeader(c.text, table);
    EXPECT_EQ(header.agencyName, c.name) << c.text;
    EXPECT_EQ(header.agencyCode, c.code) << c.text;
    EXPECT_EQ(header.year, c.year) << c.text;
    EXPECT_EQ(header.initials, c.initials) << c.text;
  }
}

ContributorTable CommittedTable() {
  return ContributorTable::Load(testing::SourceSupport() + kContributorsFileName);
}

TEST(CommittedContributors, NamedAgenciesAndTheirCodes) {
  const auto table = CommittedTable();
  struct Case { const char* name; const char* code; };
  const Case cases[] = {
      {"ORBIS CONTROL OFFICE", "OCO"}, {"US COASTAL CONTROL OFFICE", "CCO"}, {"US GEOLOGICAL SURVEY", "USGS"},
      {"US POWER SQUADRON", "USPSQD"}, {"GEOCACHING", "GEOCAC"},         {"Orbis Control Office", "OCO"},
      {"NORTH CAROLINA GEODETIC SURVEY", "NCGS"},
      {"North Carolina Department of Transportation", "NCDOT"},
  };
  for (const auto& c : cases) EXPECT_EQ(table.CodeOf(c.name), c.code) << c.name;
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
  const auto table = CommittedTable();
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

}  // namespace
}  // namespace benchlog

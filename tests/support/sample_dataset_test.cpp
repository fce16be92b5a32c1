#include <gtest/gtest.h>

#include <map>
#include <set>

#include "common/files.hpp"
#include "common/text.hpp"
#include "sample_lines.hpp"
#include "fakes/test_rows.hpp"
#include "support_files/country_file.hpp"

namespace benchlog {
namespace {

TEST(SampleDataset, DescriptionsOneAfterAnotherInCrLfLines) {
  const std::string text = ReadWholeFile(testing::SampleDataset());
  ASSERT_FALSE(text.empty());
  EXPECT_EQ(text.rfind("\r\n"), text.size() - 2);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\n') {
      ASSERT_EQ(text[i - 1], '\r') << "a lone LF at byte " << i;
    }
    if (text[i] == '\r') {
      ASSERT_EQ(text[i + 1], '\n') << "a lone CR at byte " << i;
    }
    ASSERT_TRUE(text[i] == '\r' || text[i] == '\n' || (text[i] >= ' ' && text[i] <= '~')) << "byte " << i;
  }
  EXPECT_EQ(Left(text, 7), "1      ");
}

TEST(SampleDataset, EveryDataLineCarriesItsDescriptionsPid) {
  const auto descriptions = test::ReadSampleDataset();
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
  for (const auto& d : test::ReadSampleDataset()) {
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
  for (const auto& d : test::ReadSampleDataset()) {
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

}  // namespace
}  // namespace benchlog

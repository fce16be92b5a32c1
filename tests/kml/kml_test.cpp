// The Google Earth command against tests/data/kml/marks.kml (worked out by make_golden.py beside it)
// and against outside readers of the file: GDAL's ogrinfo and xmllint.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <regex>
#include <string>
#include <vector>

#include "common/files.hpp"
#include "common/text.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_paths.hpp"
#include "kml/kml_export.hpp"

namespace benchlog {
namespace {

bool HasTool(const std::string& tool) { return std::system(("command -v " + tool + " >/dev/null").c_str()) == 0; }

std::string Output(const std::string& command) {
  std::string out;
  if (FILE* pipe = popen(command.c_str(), "r")) {
    char buffer[4096];
    for (std::size_t n; (n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;) out.append(buffer, n);
    pclose(pipe);
  }
  return out;
}

// Decimal degrees of an index position column, straight from its degrees, minutes and seconds.
double IndexDegrees(const std::string& text) {
  const auto parts = Split(Trim(text), " ");
  return std::stod(parts[0]) + std::stod(parts[1]) / 60 + std::stod(parts[2]) / 3600;
}

struct KmlRun : ::testing::Test {
  testing::TempFolder folder;
  testing::FakePlatform fake;
  testing::TestSession session;
  std::string kml;

  void RunCommand(const std::string& indexText) {
    session.dataset.DatFile = folder.File("marks.dat");
    std::vector<std::string> records = Split(indexText, "\r\n");  // records, sentinel, "" as loaded
    session.dataset.markIndex.Assign(records);
    mnuViewGE(session, fake.platform);
    kml = folder.File("marks.kml");
  }
};

TEST_F(KmlRun, WritesTheGoldenFileBesideTheDatasetAndOpensIt) {
  const std::string index = ReadWholeFile(testing::TestData("kml/marks.ndx"));
  folder.Write("marks.kml", "an older file");
  RunCommand(index);
  EXPECT_EQ(ReadWholeFile(kml), ReadWholeFile(testing::TestData("kml/marks.kml")));
  EXPECT_EQ(fake.shell.opened, std::vector<std::string>{kml});
}

TEST_F(KmlRun, EmptyIndexWritesNothingAndOpensNothing) {
  session.dataset.DatFile = folder.File("marks.dat");
  mnuViewGE(session, fake.platform);
  kml = folder.File("marks.kml");
  EXPECT_FALSE(FileExists(kml));
  EXPECT_TRUE(fake.shell.opened.empty());
}

// GDAL reads one point per readable mark, at the index's position to the 15 digits written, and the
// name with "&", "<" and the code page's accented and quote characters as UTF-8.
TEST_F(KmlRun, OutsideReadersAcceptTheFile) {
  if (!HasTool("ogrinfo") || !HasTool("xmllint")) GTEST_SKIP() << "ogrinfo or xmllint is not installed";
  const std::string index = ReadWholeFile(testing::TestData("kml/marks.ndx"));
  RunCommand(index);
  EXPECT_EQ(Output("xmllint --noout '" + kml + "' 2>&1"), "");

  const std::string info = Output("ogrinfo -ro -al '" + kml + "' 2>&1");
  EXPECT_NE(info.find("Feature Count: 11"), std::string::npos) << info;
  EXPECT_NE(info.find("Name (String) = CAF\xC3\x89 & <MILL> \xE2\x80\x9CTOP\xE2\x80\x9D"), std::string::npos) << info;

  std::vector<std::pair<double, double>> expected;
  for (const auto& record : Split(index, "\r\n"))
    if (record.size() > 42 && record[0] != ' ' && record.find('*') == std::string::npos)
      expected.emplace_back(-IndexDegrees(record.substr(26, 15)), IndexDegrees(record.substr(11, 14)));
  const std::regex point(R"(POINT \((\S+) (\S+)\))");
  std::size_t n = 0;
  for (std::sregex_iterator it(info.begin(), info.end(), point), end; it != end; ++it, ++n) {
    ASSERT_LT(n, expected.size());
    EXPECT_NEAR(std::stod((*it)[1]), expected[n].first, 1e-12) << n;
    EXPECT_NEAR(std::stod((*it)[2]), expected[n].second, 1e-12) << n;
  }
  EXPECT_EQ(n, expected.size());
}

}  // namespace
}  // namespace benchlog

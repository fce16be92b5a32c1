// The plot files and the plot store: the files of the sample dataset and of marks on both sides of
// a zone boundary against files worked out apart from the program (make_expected.py), and the
// store's limit of 9,999 marks.
#include <gtest/gtest.h>

#include "common/files.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "dataset/build_mark_index.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_paths.hpp"
#include "plot/plot_files.hpp"
#include "plot/plot_fixture.hpp"
#include "plot/plot_store.hpp"

namespace benchlog {
namespace {

using testing::TempFolder;
using testing::TestData;

using testing::kGrs80;

TEST(PlotFiles, MatchTheFilesWorkedOutForEachIndex) {
  struct Case {
    const char* name;
    std::string support;  // the folder of Towns.txt
  };
  TempFolder straddleSupport;
  straddleSupport.Write("Towns.txt", ReadWholeFile(TestData("plot/straddle_towns.txt")));
  const Case cases[] = {{"sample", testing::SourceSupport()}, {"straddle", straddleSupport.Path() + "/"}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const std::string prefix = TestData("plot/") + c.name;
    MarkIndex index;
    LoadIndexFile(prefix + ".ndx", index);
    TempFolder app;
    EXPECT_EQ(PreparePlotFiles(index, kGrs80, app.Path(), c.support), "");
    EXPECT_EQ(ReadWholeFile(app.File("UTMCoords.dat")), ReadWholeFile(prefix + "_UTMCoords.dat"));
    EXPECT_EQ(ReadWholeFile(app.File("UTMCities.dat")), ReadWholeFile(prefix + "_UTMCities.dat"));
  }
}

TEST(PlotFiles, MissingTownsFileIsAFileFailure) {
  TempFolder app, support;
  MarkIndex index;
  EXPECT_THROW(PreparePlotFiles(index, kGrs80, app.Path(), support.Path() + "/"), RuntimeFailure);
}

// An index without positions: an empty UTMCoords.dat and a run in the zone of longitude 180.
TEST(PlotFiles, IndexWithoutPositionsGivesEmptyMarksFile) {
  TempFolder app, support;
  support.Write("Towns.txt", "SOMEWHERE                    3545000774500\r\n");
  MarkIndex index;
  index.Assign({std::string(134, ' ') + "000000100 |", ""});
  EXPECT_EQ(PreparePlotFiles(index, kGrs80, app.Path(), support.Path() + "/"), "");
  EXPECT_EQ(ReadWholeFile(app.File("UTMCoords.dat")), "");
  EXPECT_EQ(ReadWholeFile(app.File("UTMCities.dat")), "");
  EXPECT_EQ(Mid(PlotZoneLine(IndexExtentDegrees{}), 101, 3), "177");
}

// 10,000 marks: the last takes the number 10000, which shifts its line by one column; the store
// reads its first four digits, 1000, and so mark 1000 is overwritten by the shifted line.
TEST(PlotStore, TheTenThousandthMarkOverwritesMarkOneThousand) {
  std::vector<std::string> records;
  for (int i = 1; i <= 10000; ++i) {
    std::string pid = "QA" + std::string(4 - std::to_string(i % 10000).size(), '0') + std::to_string(i % 10000);
    records.push_back(pid + " 1   35 45 00.00000  077 45 00.00000  MARK " + std::to_string(i));
  }
  MarkIndex index;
  index.Assign(records);
  TempFolder app, support;
  support.Write("Towns.txt", "");
  PreparePlotFiles(index, kGrs80, app.Path(), support.Path() + "/");
  const std::string text = ReadWholeFile(app.File("UTMCoords.dat"));
  const std::size_t last = text.rfind("\r\n", text.size() - 3) + 2;
  ASSERT_EQ(text.substr(last, 6), "10000 ");
  const std::string lastLine = text.substr(last, text.size() - last - 2);
  EXPECT_EQ(lastLine.size(), 67u);
  EXPECT_EQ(lastLine.substr(61), "QA0000");  // the PID from column 62

  PlotStore store;
  EXPECT_EQ(LoadPlotFile(store, app.Path()), "");
  EXPECT_EQ(store.FirstPoint, 1);
  EXPECT_EQ(store.LastPoint, 9999);
  EXPECT_EQ(store.PtPid[1000], "QA000");  // columns 61-66 of the shifted line
  EXPECT_EQ(store.PtPid[999], "QA0999");
  EXPECT_EQ(store.PtNorth[1000], std::stod(lastLine.substr(6, 7)));  // a blank and seven digits
  EXPECT_TRUE(store.CityNorth.empty());
}

// Towns number on from the last mark's number, so their arrays' lower entries stay empty.
TEST(PlotStore, TownsNumberOnFromTheLastMark) {
  TempFolder app;
  app.Write("UTMCoords.dat", "0007 04000000 00600000 SEVEN                          1 2 L PL0007\r\n"
                             "0003 04001000 00601000 THREE                                PL0003\r\n");
  app.Write("UTMCities.dat", "     04002000 00602000 TOWN ONE\r\n");
  PlotStore store;
  EXPECT_EQ(LoadPlotFile(store, app.Path()), "");
  EXPECT_EQ(store.FirstPoint, 3);
  EXPECT_EQ(store.LastPoint, 7);
  EXPECT_TRUE(store.PtLandmark[7]);
  EXPECT_EQ(store.PtHorz[7], "1");
  EXPECT_EQ(store.PtVert[7], "2");
  EXPECT_EQ(store.PtHorz[3], "");
  EXPECT_EQ(store.PtDesignation[3], "THREE");
  ASSERT_EQ(store.CityName.size(), 5u);
  EXPECT_EQ(store.CityName[4], "TOWN ONE");
  EXPECT_EQ(store.CityNorth[4], 4002000);
  EXPECT_EQ(store.CityNorth[3], 0);
}

}  // namespace
}  // namespace benchlog

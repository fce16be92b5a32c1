// The Microstation script and the Street Atlas file: whole exports of the listing fixture against
// the golden files of tests/data/export/listings (make_golden.py), the abbreviation of names, and
// the edge cases of both files.
#include <gtest/gtest.h>

#include "common/files.hpp"
#include "export/abbreviate_name.hpp"
#include "export/export_run_support.hpp"
#include "export/microstation_script.hpp"
#include "export/street_atlas_file.hpp"
#include "fakes/test_rows.hpp"

namespace benchlog::testing {
namespace {

TEST(AbbreviateName, FollowsTheWordListInItsOrder) {
  for (const auto& row : ReadRows("export/abbreviations.txt", 21, '|')) {
    std::string name = row[0];
    AbbreviateName(name);
    EXPECT_EQ(name, row[1]) << row[0];
  }
}

class ScriptExport : public ExportRunTest {
 protected:
  void SetUp() override {
    ExportRunTest::SetUp();
    OpenDataset("fixture.dat");
  }
  void ChooseMaps(bool feet, bool kept, const std::string& scale) {
    Choose("NC    3200", feet, false);
    Options().chkStreetAtlas = Options().chkMicrostation = 1;
    Options().chkNRMarks = Options().chkLandmarks = kept ? 1 : 0;
    Options().cboScale = scale;
  }
};

// With both listings ticked, as the names of the Street Atlas file are cut to 30 by them.
TEST_F(ScriptExport, MatchesTheFilesWorkedOutByHand) {
  struct Case {
    bool feet, kept;
    const char* scale;
    const char* msf;
    const char* sa6;
  };
  for (const Case c : {Case{false, false, "5280", "nc_meters.msf", "nc_meters_sa6.txt"},
                       Case{true, true, "1320", "nc_feet_kept.msf", "nc_kept_sa6.txt"}}) {
    ChooseMaps(c.feet, c.kept, c.scale);
    RunExport(Out("maps.txt"));
    EXPECT_TRUE(Completed());
    EXPECT_EQ(ReadWholeFile(Out("maps.msf")), ListingFixture(c.msf)) << c.msf;
    EXPECT_EQ(ReadWholeFile(Out("maps_sa6.txt")), ListingFixture(c.sa6)) << c.sa6;
  }
}

// A scale that is no number fails while the script's head is written: the export ends without a
// word, and an old script stays as it was.
TEST_F(ScriptExport, AScaleThatIsNoNumberEndsTheExport) {
  for (const char* scale : {"12X", ""}) {
    ChooseMaps(false, false, scale);
    folder.Write("maps.msf", "old script\r\n");
    fake.ui.messages.clear();
    RunExport(Out("maps.txt"));
    EXPECT_TRUE(Messages().empty()) << scale;
    EXPECT_EQ(ReadWholeFile(Out("maps.msf")), "old script\r\n");
  }
}

TEST(PlotMarkGroup, WithoutMembersStillPlacesBothTexts) {
  TempFolder folder;
  {
    LineWriter out(folder.File("group.msf"));
    PlotMarkGroup(out, {"", "3 1 "}, 1, '1', 3, 13, "C");
    out.Close();
  }
  EXPECT_EQ(ReadWholeFile(folder.File("group.msf")),
            "WT=3\r\nCO=0\r\nLV=3\r\nFT=91\r\nPLACE TEXT\r\nC\r\n\x1b\r\nPLACE LINE\r\nRESET\r\nFT=1\r\nLV=13\r\n"
            "PLACE TEXT\r\n\x1b\r\nPLACE LINE\r\nRESET\r\n");
}

// A Description without a position still gives its lines, the hemisphere letters blank. (A zone
// that is not in the table projects nothing, so the empty position's coordinates fit the texts.)
TEST_F(ScriptExport, AMarkWithoutAPositionKeepsItsLine) {
  OpenDataset("nopos.dat");
  Choose("ZZ    9999", false, false, false, false);
  Options().chkStreetAtlas = 1;
  RunExport(Out("nopos.txt"));
  EXPECT_EQ(ReadWholeFile(Out("nopos_sa6.txt")), " , ,NO POSITION BM,46,1,1\r\n");
}

}  // namespace
}  // namespace benchlog::testing

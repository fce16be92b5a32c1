// Whole exports through the Export command, compared byte for byte with listings worked out
// independently (tests/data/export/listings/make_golden.py: fields transcribed by hand, plane
// coordinates from PROJ, lines laid out by the listing rules).
#include <gtest/gtest.h>

#include "common/files.hpp"
#include "export/export_files.hpp"
#include "export/export_run_support.hpp"

namespace benchlog::testing {
namespace {

struct GoldenCase {
  const char* name;
  const char* dataset;
  const char* zone;
  bool feet;
  bool elevationFeet;
  bool utm;
  std::set<std::string> selected;  // empty: all marks
  const char* golden;              // stem of the expected .hcl and .vcl
};

class GoldenListings : public ExportRunTest, public ::testing::WithParamInterface<GoldenCase> {};

TEST_P(GoldenListings, MatchTheListingsWorkedOutByHand) {
  const GoldenCase& c = GetParam();
  OpenDataset(c.dataset);
  Choose(c.zone, c.feet, c.elevationFeet);
  if (c.utm) Options().SetUnits(false, false, true);
  if (!c.selected.empty()) {
    BuildIndex();
    Options().SetAllStations(false);
  }
  RunExport(Out("export.out"), c.selected);

  EXPECT_EQ(Messages(), std::vector<std::string>{"Processing complete!"});
  EXPECT_EQ(ReadWholeFile(Out("export.hcl")), ListingFixture(std::string(c.golden) + ".hcl"));
  EXPECT_EQ(ReadWholeFile(Out("export.vcl")), ListingFixture(std::string(c.golden) + ".vcl"));
}

INSTANTIATE_TEST_SUITE_P(
    OptionSets, GoldenListings,
    ::testing::Values(
        // Grid feet of a US survey foot zone, elevations in metres.
        GoldenCase{"NcUsFeet", "fixture.dat", "NC    3200", true, false, false, {}, "nc_feet"},
        // Grid feet of an international foot zone, elevations in feet.
        GoldenCase{"ScInternationalFeetElevationsInFeet", "fixture.dat", "SC    3900", true, true, false, {},
                   "sc_ifeet"},
        GoldenCase{"NcMetres", "fixture.dat", "NC    3200", false, false, false, {}, "nc_meters"},
        // UTM chosen: the listings still hold state plane metres, headed "(M)".
        GoldenCase{"UtmGivesStatePlaneMetres", "fixture.dat", "NC    3200", false, false, true, {}, "nc_meters"},
        // Two horizontal marks (heading, empty line, two lines) and one vertical mark (heading,
        // its line, the empty line last).
        GoldenCase{"SelectedMarks", "fixture.dat", "NC    3200", false, false, false,
                   {"FY3210", "DH7204", "FY0895"}, "selected"},
        // A northing of eight digits is wider than "######0  " and breaks the vertical line at
        // the elevation's column; the piece with the elevation sorts first. No horizontal mark:
        // the ".hcl" has 0 bytes and no heading.
        GoldenCase{"WideNorthingBreaksTheLine", "tx.dat", "TX SC 4204", true, false, false, {"XT2001"},
                   "tx_break"}),
    [](const ::testing::TestParamInfo<GoldenCase>& info) { return std::string(info.param.name); });

// Read a few bytes at a time, so that Descriptions and lines fall across the blocks, the dataset
// gives the same listings.
TEST_F(ExportRunTest, ADatasetReadInSmallBlocksGivesTheSameListings) {
  OpenDataset("fixture.dat");
  Choose("NC    3200", true, false);
  TextBlocks text(TextFile{session.dataset.DatFile, 13});
  std::string ErrMsg = "stale";
  ExportFiles(session, fake.platform, text, Out("export.out"), ErrMsg);
  EXPECT_EQ(ErrMsg, "");
  EXPECT_EQ(Messages(), std::vector<std::string>{"Processing complete!"});
  EXPECT_EQ(ReadWholeFile(Out("export.hcl")), ListingFixture("nc_feet.hcl"));
  EXPECT_EQ(ReadWholeFile(Out("export.vcl")), ListingFixture("nc_feet.vcl"));
}

}  // namespace
}  // namespace benchlog::testing

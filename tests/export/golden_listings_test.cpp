// Whole exports through the Export command, compared byte for byte with listings worked out
// independently (tests/data/export/listings/make_golden.py: fields transcribed by hand, plane
// coordinates from PROJ, lines laid out by the listing rules), for the option sets of
// tests/data/export/golden_cases.txt.
#include <gtest/gtest.h>

#include "common/files.hpp"
#include "common/text.hpp"
#include "export/export_run_support.hpp"
#include "export/export_test_support.hpp"

namespace benchlog::testing {
namespace {

using Row = std::vector<std::string>;
std::vector<Row> GoldenCases() { return ReadRows("export/golden_cases.txt", 6, '|'); }

TEST(GoldenCases, AreAllRead) { EXPECT_EQ(GoldenCases().size(), 6u); }

class GoldenListings : public ExportRunTest, public ::testing::WithParamInterface<Row> {};

TEST_P(GoldenListings, MatchTheListingsWorkedOutByHand) {
  const Row& c = GetParam();
  OpenDataset(c[1]);
  Choose(c[2], c[3] == "feet", c[4] == "feet");
  if (c[3] == "utm") Options().SetUnits(false, false, true);
  std::set<std::string> chosen;
  if (!c[5].empty()) {
    for (const std::string& pid : Split(c[5], " ")) chosen.insert(pid);
    BuildIndex();
    Options().SetAllStations(false);
  }
  RunExport(Out("export.out"), chosen);

  EXPECT_EQ(Messages(), std::vector<std::string>{"Processing complete!"});
  EXPECT_EQ(ReadWholeFile(Out("export.hcl")), ListingFixture(c[6] + ".hcl"));
  EXPECT_EQ(ReadWholeFile(Out("export.vcl")), ListingFixture(c[6] + ".vcl"));
}

INSTANTIATE_TEST_SUITE_P(OptionSets, GoldenListings, ::testing::ValuesIn(GoldenCases()),
                         [](const ::testing::TestParamInfo<Row>& info) { return info.param[0]; });

}  // namespace
}  // namespace benchlog::testing

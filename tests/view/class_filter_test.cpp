#include <gtest/gtest.h>

#include <map>

#include "view/class_filter.hpp"
#include "fakes/fakes.hpp"
#include "session/frm_select_points.hpp"

namespace benchlog {
namespace {

// A 145-character index record of blanks with the PID, the given columns set, and the offset.
std::string Record(const std::map<int, std::string>& columns) {
  std::string record(145, ' ');
  record.replace(0, 6, "AB1234");
  record.replace(134, 9, "000000001");
  record.replace(143, 2, " |");
  for (const auto& [column, text] : columns) record.replace(static_cast<std::size_t>(column - 1), text.size(), text);
  return record;
}

std::string Sentinel() { return std::string(134, ' ') + "000012345 |"; }

TEST(ClassFilter, EachClassTestsItsColumn) {
  struct Case {
    const char* what;
    int code;
    std::map<int, std::string> columns;
    bool listed;
  };
  const Case cases[] = {
      {"horizontal order", kAllHorizontal, {{8, "3"}}, true},
      {"no horizontal order", kAllHorizontal, {}, false},
      {"first order", kHorizontalFirstAndBetter, {{8, "1"}}, true},
      {"network mark", kHorizontalFirstAndBetter, {{8, "0"}}, true},
      {"order A", kHorizontalFirstAndBetter, {{8, "A"}}, true},
      {"order B", kHorizontalFirstAndBetter, {{8, "B"}}, true},
      {"special is not first", kHorizontalFirstAndBetter, {{8, "S"}}, false},
      {"second is not first", kHorizontalFirstAndBetter, {{8, "2"}}, false},
      {"vertical order", kAllVertical, {{10, "P"}}, true},
      {"first order vertical", kVerticalFirstOnly, {{10, "1"}}, true},
      {"second order vertical", kVerticalFirstOnly, {{10, "2"}}, false},
      {"boundary in the name", kBoundaryMonuments, {{43, "STATE BOUNDARY 12"}}, true},
      {"bdry mon in the name", kBoundaryMonuments, {{43, "BDRY MON 7"}}, true},
      {"boundary in the county", kBoundaryMonuments, {{74, "BOUNDARY"}}, true},
      {"boundary only before col 43", kBoundaryMonuments, {{12, "BOUNDARY"}}, false},
      {"landmark", kLandmarks, {{110, "L"}}, true},
      {"stability C", kLandmarks, {{110, "C"}}, false},
      {"CORS", kCors, {{104, "C"}}, true},
      {"FBN", kBaseNetwork, {{100, "F"}}, true},
      {"CBN", kBaseNetwork, {{100, "C"}}, true},
      {"SACS", kAirport, {{102, "S"}}, true},
      {"tidal", kTidal, {{98, "T"}}, true},
      {"satellite suitable", kGpsSuitable, {{106, "Y"}}, true},
      {"satellite not suitable", kGpsSuitable, {{106, "N"}}, false},
      {"height mod", kHeightMod, {{108, "H"}}, true},
      {"good, position without decimals", kRecoveredNotPositioned, {{12, "39 00 12      "}, {126, "G"}}, true},
      {"poor, position without decimals", kRecoveredNotPositioned, {{12, "39 00 12      "}, {126, "P"}}, true},
      {"see description counts as found", kRecoveredNotPositioned, {{12, "39 00 12      "}, {126, "S"}}, true},
      {"good, decimals", kRecoveredNotPositioned, {{12, "39 00 12.12345"}, {126, "G"}}, false},
      {"not recovered", kRecoveredNotPositioned, {{12, "39 00 12      "}, {126, "N"}}, false},
      {"other condition", kRecoveredNotPositioned, {{12, "39 00 12      "}, {126, "O"}}, false},
      {"good, no photo", kRecoveredNotPhotographed, {{126, "G"}}, true},
      {"good, photo", kRecoveredNotPhotographed, {{112, "Y"}, {126, "G"}}, false},
      {"destroyed, no photo", kRecoveredNotPhotographed, {{126, "D"}}, false},
  };
  for (const auto& c : cases) EXPECT_EQ(PassesClassTest(Record(c.columns), c.code), c.listed) << c.what;
}

TEST(ClassFilter, EmptyElementPassesEveryNotBlankTest) {
  // An empty element has no column at all, which is no blank.
  for (int code : {kAllHorizontal, kAllVertical, kCors, kBaseNetwork, kAirport, kTidal, kHeightMod})
    EXPECT_TRUE(PassesClassTest("", code)) << code;
  for (int code : {kHorizontalFirstAndBetter, kVerticalFirstOnly, kLandmarks, kGpsSuitable, kBoundaryMonuments,
                   kRecoveredNotPositioned, kRecoveredNotPhotographed})
    EXPECT_FALSE(PassesClassTest("", code)) << code;
}

TEST(ClassFilter, SentinelPassesNoColumnTest) {
  for (int code : {kAllHorizontal, kHorizontalFirstAndBetter, kAllVertical, kVerticalFirstOnly, kLandmarks, kCors,
                   kBaseNetwork, kAirport, kTidal, kGpsSuitable, kHeightMod, kRecoveredNotPositioned,
                   kRecoveredNotPhotographed, kBoundaryMonuments})
    EXPECT_FALSE(PassesClassTest(Sentinel(), code)) << code;
}

TEST(FrmSelectPoints, SelectAllLeavesTheFirstItemAsItWas) {
  FrmSelectPoints list;
  list.AddItem("only");
  list.cmdSelectAll_Click();
  EXPECT_FALSE(list.Selected(0));  // one item: nothing selected

  list.Clear();
  for (const char* item : {"a", "b", "c"}) list.AddItem(item);
  list.cmdSelectAll_Click();
  EXPECT_EQ(list.selected, (std::vector<bool>{false, true, true}));
}

TEST(FrmSelectPoints, ItemOfARecordEndsInItsPid) {
  const std::string record = Record({{43, "PINE HILL"}, {74, "FREDERICK"}});
  const std::string item = SelectionItemOfRecord(record);
  EXPECT_EQ(item, "PINE HILL" + std::string(21, ' ') + " FREDERICK" + std::string(14, ' ') + " AB1234");
  EXPECT_EQ(FrmSelectPoints::PidOfItem(item), "AB1234");
  // An empty element gives an item of two blanks and an empty PID.
  EXPECT_EQ(SelectionItemOfRecord(""), "  ");
  EXPECT_EQ(FrmSelectPoints::PidOfItem("  "), "");
}

TEST(FrmSelectPoints, GeometryDefaultsAndRoundTrip) {
  testing::MemorySettings settings;
  FrmSelectPoints list;
  list.Load(settings);
  EXPECT_EQ(list.placement.height, 7605);
  EXPECT_EQ(list.placement.width, 9720);
  list.placement = {kNormal, 100, 200, 5000, 6000};
  list.Unload(settings);
  FrmSelectPoints again;
  again.Load(settings);
  EXPECT_EQ(again.placement.top, 100);
  EXPECT_EQ(again.placement.left, 200);
  EXPECT_EQ(again.placement.height, 5000);
  EXPECT_EQ(again.placement.width, 6000);
}

}  // namespace
}  // namespace benchlog

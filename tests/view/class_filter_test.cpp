#include <gtest/gtest.h>

#include <map>

#include "common/text.hpp"
#include "fakes/test_rows.hpp"
#include "session/frm_select_points.hpp"
#include "view/class_filter.hpp"

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

const std::map<std::string, int> kClasses = {
    {"AllHorizontal", kAllHorizontal}, {"HorizontalFirstAndBetter", kHorizontalFirstAndBetter},
    {"AllVertical", kAllVertical},     {"VerticalFirstOnly", kVerticalFirstOnly},
    {"BoundaryMonuments", kBoundaryMonuments}, {"Landmarks", kLandmarks}, {"Cors", kCors},
    {"BaseNetwork", kBaseNetwork},     {"Airport", kAirport}, {"Tidal", kTidal}, {"GpsSuitable", kGpsSuitable},
    {"HeightMod", kHeightMod},         {"RecoveredNotPositioned", kRecoveredNotPositioned},
    {"RecoveredNotPhotographed", kRecoveredNotPhotographed}};

TEST(ClassFilter, EachClassTestsItsColumn) {
  for (const auto& cells : testing::ReadRows("view/class_filter.txt", 62, '|')) {
    std::map<int, std::string> columns;
    for (const std::string& piece : Split(cells[1], ";"))
      if (!piece.empty() && piece != "EMPTY" && piece != "SENTINEL")
        columns[std::stoi(piece)] = piece.substr(piece.find('=') + 1);
    const std::string record = cells[1] == "EMPTY"      ? std::string()
                               : cells[1] == "SENTINEL" ? std::string(134, ' ') + "000012345 |"
                                                        : Record(columns);
    EXPECT_EQ(PassesClassTest(record, kClasses.at(cells[0])), cells[2] == "1") << cells[3];
  }
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

}  // namespace
}  // namespace benchlog

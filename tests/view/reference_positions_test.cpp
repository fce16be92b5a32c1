// Compute Pos of Ref Obj from the menu: the list of horizontal marks, the Description read by PID,
// the report of tests/data/geodesy/reference_objects in the viewer, and the silent end of a sheet
// whose reference mark is numbered above 10.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/command_registry.hpp"
#include "common/files.hpp"
#include "common/text.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_paths.hpp"
#include "fakes/test_rows.hpp"
#include "session/frm_select_points.hpp"
#include "session/frm_view.hpp"

namespace benchlog {
namespace {

std::string Sheet(const std::string& pid) {
  return ReadWholeFile(testing::TestData("geodesy/reference_objects/") + pid + ".dat");
}

// An index record with the columns the command reads.
std::string Record(const std::vector<std::string>& mark, const std::string& horzOrder, std::size_t offset) {
  std::string record(145, ' ');
  const auto put = [&record](std::size_t column, const std::string& text) {
    record.replace(column - 1, text.size(), text);
  };
  put(1, mark[0]);
  put(8, horzOrder);
  put(12, mark[2]);
  put(27, mark[3]);
  put(43, mark[1]);
  put(74, "ORBIS COUNTY");
  put(110, mark[4]);
  const std::string digits = std::to_string(offset);
  put(135, std::string(9 - digits.size(), '0') + digits);
  return record;
}

struct ReferencePositionsTest : ::testing::Test {
  testing::TempFolder folder;
  testing::FakePlatform fake{folder.Path()};
  testing::TestSession session;
  CommandTable table = BuildCommandTable();
  std::vector<std::string> listed;

  // The dataset holds the four sheets; the marks without a sheet of their own (and a mark without a
  // horizontal order, which the list leaves out) have empty Descriptions where the next sheet begins.
  void MakeDataset(const std::string& sheetOfRo0101) {
    session.config.ellipsoidA = 6378137.0;  // GRS80, as "Benchlog.ini" gives it
    session.config.ellipsoidE2 = 0.00669438002290;
    session.config.ellipsoidEp2 = session.config.ellipsoidE2 / (1 - session.config.ellipsoidE2);
    const std::vector<std::string> sheets = {Sheet("RO0001"), sheetOfRo0101, Sheet("RO0201"), Sheet("RO0301")};
    std::vector<std::size_t> starts{1};
    for (const auto& sheet : sheets) starts.push_back(starts.back() + sheet.size());
    session.dataset.DatFile = folder.Write("marks.dat", sheets[0] + sheets[1] + sheets[2] + sheets[3]);
    std::vector<std::string> records;
    for (const auto& mark : testing::ReadRows("geodesy/reference_objects/nearby.txt", 10, '|')) {
      const std::size_t sheet = static_cast<std::size_t>(std::stoi(mark[0].substr(2, 2)));  // RO00.. to RO03..
      const bool ownSheet = mark[0].substr(4) == "01";
      records.push_back(Record(mark, "1", ownSheet ? starts[sheet] : starts[sheet + 1]));
    }
    records.insert(records.begin() + 1, Record({"RO0010", "LEVEL DISK", "", "", " "}, " ", starts[1]));
    records.push_back(std::string(134, ' ') + std::string(9 - std::to_string(starts[4]).size(), '0') +
                      std::to_string(starts[4]) + " |");
    session.dataset.markIndex.Assign(records);
  }

  // Runs the command; the user picks the item of `pid` (none when empty) and presses Okay.
  void Run(const std::string& pid) {
    fake.ui.modalActions.push_back([this, pid](DialogModel& model) {
      auto& list = dynamic_cast<FrmSelectPoints&>(model);
      EXPECT_EQ(list.caption, "Select Horizontal Mark:");
      EXPECT_FALSE(list.cmdSelectAllVisible);
      EXPECT_EQ(list.Tag, "Canceled");
      for (std::size_t i = 0; i < list.lstPoints.size(); ++i) {
        listed.push_back(FrmSelectPoints::PidOfItem(list.lstPoints[i]));
        if (listed.back() == pid) list.selected[i] = true;
      }
      if (!pid.empty()) list.cmdOkay_Click();
    });
    fake.ui.modalActions.push_back([](DialogModel&) {});
    table.Run("mnuCompPos", session, fake.platform);
  }
  const frmView* Viewer() const {
    return fake.ui.modals.size() == 2 ? dynamic_cast<const frmView*>(fake.ui.modals[1]) : nullptr;
  }
};

TEST_F(ReferencePositionsTest, TheChosenStationsReportIsShownInTheViewer) {
  MakeDataset(Sheet("RO0101"));
  Run("RO0301");
  EXPECT_EQ(listed, (std::vector<std::string>{"RO0001", "RO0021", "RO0022", "RO0023", "RO0024", "RO0101",
                                               "RO0201", "RO0206", "RO0301", "RO0306"}));
  const frmView* view = Viewer();
  ASSERT_NE(view, nullptr);
  EXPECT_EQ(view->txtViewFile, ReadWholeFile(testing::TestData("geodesy/reference_objects/RO0301.report")));
  EXPECT_EQ(view->Caption, "View Positions of Reference Objects ");
  EXPECT_TRUE(fake.ui.messages.empty());
}

TEST_F(ReferencePositionsTest, CancelOrAMarkNumberedAboveTenShowsNothing) {
  std::string sheet = Sheet("RO0101");
  const std::size_t at = sheet.find("NCCH RM 2 ");
  ASSERT_NE(at, std::string::npos);
  sheet.replace(at, 10, "NCCH RM 12");
  MakeDataset(sheet);
  Run("");
  EXPECT_EQ(fake.ui.modals.size(), 1u);
  fake.ui.modals.clear();
  fake.ui.modalActions.clear();
  Run("RO0101");
  EXPECT_EQ(fake.ui.modals.size(), 1u);
  EXPECT_EQ(fake.ui.MessageTexts(), std::vector<std::string>{});
}

}  // namespace
}  // namespace benchlog

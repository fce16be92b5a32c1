#include <gtest/gtest.h>

#include "app/command_registry.hpp"
#include "common/files.hpp"
#include "common/text.hpp"
#include "dataset/build_mark_index.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_paths.hpp"
#include "fakes/test_rows.hpp"
#include "session/frm_select_points.hpp"
#include "session/frm_view.hpp"

namespace benchlog {
namespace {
using testing::FakePlatform;
using testing::TempFolder;

// layouts.dat: AB1234 (CORS, special order), AB1235 (FBN, second/first), AB1236 (its record 22
// characters short, vertical posted), AB1237 (tidal, CBN, SACS, Ht Mod, third/second).
struct ViewByClassTest : ::testing::Test {
  TempFolder folder;
  FakePlatform fake{folder.Path()};
  testing::TestSession session;
  std::string dat = ReadWholeFile(testing::TestData("dataset/layouts.dat"));
  CommandTable table = BuildCommandTable();

  ViewByClassTest() {
    session.dataset.DatFile = folder.Write("layouts.dat", dat);
    session.dataset.DatFilePath = folder.Path() + "/";
    session.dataset.IndexFile = folder.File("layouts.ndx");
  }
  void LoadIndex() { LoadIndexFile(testing::TestData("dataset/layouts.ndx"), session.dataset.markIndex); }

  // Runs a class command; the user sees the list, picks the items at `picks` and presses Okay.
  std::vector<std::string> Pick(const std::string& command, std::vector<std::size_t> picks) {
    std::vector<std::string> listed;
    fake.ui.modalActions.push_back([&, picks](DialogModel& model) {
      auto& list = dynamic_cast<FrmSelectPoints&>(model);
      EXPECT_EQ(list.caption, "Select Point(s) to View");
      EXPECT_EQ(list.Tag, "Canceled");
      for (const auto& item : list.lstPoints) listed.push_back(FrmSelectPoints::PidOfItem(item));
      for (auto i : picks) list.selected.at(i) = true;
      list.cmdOkay_Click();
    });
    table.Run(command, session, fake.platform);
    return listed;
  }
  const frmView* Viewer() const {
    return fake.ui.modals.size() == 2 ? dynamic_cast<const frmView*>(fake.ui.modals[1]) : nullptr;
  }
};

TEST_F(ViewByClassTest, ClassesListTheirMarksInIndexOrder) {
  LoadIndex();
  for (const auto& c : testing::ReadRows("view/class_lists.txt", 9, '|')) {
    fake.ui.modals.clear();
    const auto pids = c[1].empty() ? std::vector<std::string>{} : Split(c[1], ";");
    EXPECT_EQ(Pick(c[0], {}), pids) << c[0];
    EXPECT_EQ(fake.ui.modals.size(), 1u) << c[0];  // nothing selected: no viewer
  }
}

TEST_F(ViewByClassTest, BuiltIndexListsItsEmptyElementBeforeTheLastRecord) {
  ASSERT_TRUE(BuildMarkIndex(session.dataset.DatFile, session.dataset.IndexFile, session.dataset.markIndex, fake.platform));
  EXPECT_EQ(Pick("mnuAllHorizontal", {}), (std::vector<std::string>{"AB1234", "AB1235", "", "AB1237"}));
}

TEST_F(ViewByClassTest, SelectedDescriptionsReachTheViewerTogether) {
  LoadIndex();
  session.shell.backColor = 0x00CCFFFF;  // the main window's background
  Pick("mnuAllHorizontal", {0, 2});  // AB1234 and AB1237
  const frmView* view = Viewer();
  ASSERT_NE(view, nullptr);
  // AB1234 spans offsets 1 to 2235; AB1237 runs from 3949 to the sentinel's 4898, whose last
  // byte is not read back.
  EXPECT_EQ(view->txtViewFile, dat.substr(0, 2234) + dat.substr(3948, 949));
  EXPECT_EQ(view->Caption, "View Description(s)");
  EXPECT_EQ(view->Tag, "AB1234");
  EXPECT_EQ(view->strFileType, "dat");
  EXPECT_EQ(view->placement.state, kMaximized);
  EXPECT_EQ(view->BackColor, 0x00CCFFFFu);
}

TEST_F(ViewByClassTest, AnEmptyLastPidOrCancelEndsWithoutTheViewer) {
  LoadIndex();
  Pick("mnuAllHorizontal", {0, 3});  // AB1234 and the empty element
  EXPECT_EQ(Viewer(), nullptr);

  fake.ui.modals.clear();
  fake.ui.modalActions.push_back([](DialogModel& model) { dynamic_cast<FrmSelectPoints&>(model).cmdCancel_Click(); });
  table.Run("mnuAllHorizontal", session, fake.platform);
  EXPECT_EQ(fake.ui.modals.size(), 1u);
  EXPECT_TRUE(fake.ui.messages.empty());
}

TEST_F(ViewByClassTest, NoIndexFailsOnTheArrayBound) {
  table.Run("mnuAllHorizontal", session, fake.platform);
  EXPECT_EQ(fake.ui.MessageTexts(), std::vector<std::string>{"Subscript out of range"});
  EXPECT_TRUE(fake.ui.modals.empty());
}

TEST_F(ViewByClassTest, MoreThanTenThousandSelectedFail) {
  std::vector<std::string> elements(10001, std::string(145, ' '));
  for (auto& e : elements) e.replace(0, 8, "ZZ0001 1");
  session.dataset.markIndex.Assign(elements);
  fake.ui.modalActions.push_back([](DialogModel& model) {
    auto& list = dynamic_cast<FrmSelectPoints&>(model);
    list.selected.assign(list.lstPoints.size(), true);
    list.cmdOkay_Click();
  });
  table.Run("mnuAllHorizontal", session, fake.platform);
  EXPECT_EQ(fake.ui.MessageTexts(), std::vector<std::string>{"Subscript out of range"});
}

TEST_F(ViewByClassTest, DescriptionByPid) {
  LoadIndex();
  fake.ui.inputAnswers = {"ab1234", "", "ZZ9999"};
  fake.ui.modalActions.push_back([](DialogModel&) {});
  table.Run("mnuLocByPid", session, fake.platform);
  ASSERT_EQ(fake.ui.modals.size(), 1u);
  const auto* view = dynamic_cast<const frmView*>(fake.ui.modals[0]);
  EXPECT_EQ(view->Tag, "AB1234");
  EXPECT_EQ(view->txtViewFile, dat.substr(0, 2234));
  EXPECT_EQ(view->Caption, "View Description(s)");

  table.Run("mnuLocByPid", session, fake.platform);  // empty answer: nothing
  table.Run("mnuLocByPid", session, fake.platform);
  EXPECT_EQ(fake.ui.MessageTexts(), std::vector<std::string>{"PID not found!"});
  EXPECT_EQ(fake.ui.modals.size(), 1u);
}

}  // namespace
}  // namespace benchlog

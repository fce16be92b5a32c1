#include <gtest/gtest.h>

#include "app/command_registry.hpp"
#include "common/files.hpp"
#include "dataset/build_mark_index.hpp"
#include "session/dataset_paths.hpp"
#include "dataset/dataset_test_support.hpp"
#include "dataset/description_file.hpp"
#include "dataset/frm_get_file.hpp"
#include "fakes/fakes.hpp"
#include "session/frm_select_points.hpp"
#include "session/frm_view.hpp"

namespace benchlog {
namespace {
using testing::FakePlatform;
using testing::Fixture;
using testing::TempFolder;

struct DatasetCommandsTest : ::testing::Test {
  TempFolder folder;
  FakePlatform fake{folder.Path()};
  testing::TestSession session;
  CommandTable table = BuildCommandTable();

  void Open(const std::string& name, const std::string& text) {
    session.dataset.DatFile = folder.Write(name, text);
    session.dataset.DatFilePath = folder.Path() + "/";
    SetDerivedPaths(session, folder.Path());
    ASSERT_TRUE(BuildMarkIndex(session.dataset.DatFile, session.dataset.IndexFile, session.dataset.markIndex, fake.platform));
  }
  void Run(const std::string& name) { table.Run(name, session, fake.platform); }
  // Plays the user in frmSelectPoints: selects the items whose PID is listed, then Okay.
  void SelectPids(std::vector<std::string> pids) {
    fake.ui.modalActions.push_back([pids](DialogModel& model) {
      auto& list = dynamic_cast<FrmSelectPoints&>(model);
      for (std::size_t i = 0; i < list.lstPoints.size(); ++i)
        for (const auto& pid : pids) list.selected[i] = list.selected[i] || FrmSelectPoints::PidOfItem(list.lstPoints[i]) == pid;
      list.cmdOkay_Click();
    });
  }
};

TEST_F(DatasetCommandsTest, CompressDropsBlanksAndReindexes) {
  Open("blanked.dat", Fixture("blanked.dat"));
  Run("mnuCompDatFile");
  EXPECT_EQ(ReadWholeFile(session.dataset.DatFile), Fixture("blanked_compressed.dat"));
  EXPECT_EQ(fake.ui.MessageTexts(), std::vector<std::string>{"File Compressed!"});
  ASSERT_FALSE(fake.progressHistory.empty());
  bool reindexShown = false;
  for (const auto& p : fake.progressHistory) reindexShown = reindexShown || (p.Visible() && p.lblProcessing == "Reindexing file");
  EXPECT_TRUE(reindexShown);
  EXPECT_FALSE(fake.progress.Visible());
  EXPECT_EQ(ReadWholeFile(session.dataset.IndexFile).substr(0, 6), "JK0001");
}

TEST_F(DatasetCommandsTest, NewOnAFreshNameMakesNoFile) {
  Open("layouts.dat", Fixture("layouts.dat"));
  const auto before = session.dataset.markIndex.Elements();
  fake.ui.fileAnswers.push_back(folder.File("fresh.dat"));
  Run("mnuFileNew");
  const auto& dialog = fake.ui.fileDialogs.at(0);
  EXPECT_TRUE(dialog.save);
  EXPECT_EQ(dialog.title, "Create Dat File");
  EXPECT_EQ(dialog.filter, "Data Files (*.dat)|*.dat");
  EXPECT_EQ(dialog.initDir, folder.Path() + "/");
  EXPECT_EQ(session.dataset.DatFile, folder.File("fresh.dat"));
  EXPECT_EQ(session.shell.caption, folder.File("fresh.dat"));
  EXPECT_EQ(session.dataset.IndexFile, folder.File("fresh.ndx"));
  EXPECT_EQ(fake.settings.GetSetting("Settings", "LastDatFullName", ""), folder.File("fresh.dat"));
  EXPECT_FALSE(FileExists(folder.File("fresh.dat")));
  EXPECT_FALSE(session.menu["mnuViewHcl"].enabled);
  EXPECT_FALSE(session.menu["mnuViewVcl"].enabled);
  EXPECT_FALSE(session.menu["mnuViewError"].enabled);
  EXPECT_TRUE(session.menu["mnuTools"].enabled);
  EXPECT_EQ(session.dataset.markIndex.Elements(), before);  // the old records stay until the next build
}

TEST_F(DatasetCommandsTest, NewOnAnExistingNameAsksFirst) {
  Open("layouts.dat", Fixture("layouts.dat"));
  const auto before = session.dataset.markIndex.Elements();
  fake.ui.fileAnswers = {session.dataset.DatFile, session.dataset.DatFile};
  fake.ui.msgAnswers = {MsgResult::No, MsgResult::Yes};

  Run("mnuFileNew");  // No: the file, its index and MarkIndex stay
  ASSERT_EQ(fake.ui.messages.size(), 1u);
  EXPECT_EQ(fake.ui.messages[0].text, "File exists.  Overwrite?");
  EXPECT_EQ(fake.ui.messages[0].title, "Create Mkdata File");
  EXPECT_EQ(fake.ui.messages[0].buttons, MsgButtons::YesNo);
  EXPECT_TRUE(FileExists(session.dataset.DatFile));
  EXPECT_TRUE(FileExists(session.dataset.IndexFile));
  EXPECT_EQ(session.dataset.markIndex.Elements(), before);

  Run("mnuFileNew");  // Yes: both files go and the index is cleared
  EXPECT_FALSE(FileExists(session.dataset.DatFile));
  EXPECT_FALSE(FileExists(session.dataset.IndexFile));
  EXPECT_TRUE(session.dataset.markIndex.Empty());
}

TEST_F(DatasetCommandsTest, CombineCopiesTheSelectedFilesInListOrder) {
  folder.Write("in/b.dat", "B1\r\nB2");  // a last line without its end gets one
  folder.Write("in/a.dat", "A1\r\nA2\nstill A2\r\n");
  folder.Write("in/c.dat", "C1\r\n");
  folder.Write("in/notes.txt", "not listed\r\n");
  session.dataset.DatFilePath = folder.Path() + "/in/";
  folder.Write("out/combined.dat", "old contents");
  fake.ui.fileAnswers.push_back(folder.File("out/combined.dat"));
  fake.ui.modalActions.push_back([](DialogModel& model) {
    auto& dialog = dynamic_cast<FrmGetFile&>(model);
    EXPECT_EQ(dialog.caption, "Select .dat Files to Combine");
    EXPECT_EQ(dialog.files, (std::vector<std::string>{"a.dat", "b.dat", "c.dat"}));
    dialog.selected = {true, true, false};
    dialog.cmdOK_Click();
  });
  Run("mnuCombineDat");
  EXPECT_EQ(fake.ui.fileDialogs.at(0).title, "Create Combined Dat File");
  EXPECT_EQ(ReadWholeFile(folder.File("out/combined.dat")), "A1\r\nA2\nstill A2\r\nB1\r\nB2\r\n");
  ASSERT_EQ(fake.ui.messages.size(), 1u);
  EXPECT_EQ(fake.ui.messages[0].text, "Files combined.");
  EXPECT_EQ(fake.ui.messages[0].title, "Combine .dat Files");
  EXPECT_FALSE(FileExists(folder.File("temp.tmp")));

  fake.ui.fileAnswers.push_back(folder.File("out/other.dat"));
  fake.ui.modalActions.push_back([](DialogModel& model) { dynamic_cast<FrmGetFile&>(model).cmdCancel_Click(); });
  Run("mnuCombineDat");
  EXPECT_FALSE(FileExists(folder.File("out/other.dat")));
  EXPECT_EQ(fake.ui.messages.size(), 1u);
}

TEST_F(DatasetCommandsTest, DeleteBlanksCompressesAndRebuilds) {
  // landmarks.dat: CD0001..CD0008 at offsets 1, 467, 889, 1318, 1799, 2214, 2634, 3091; 3513 bytes.
  const std::string dat = Fixture("landmarks.dat");
  Open("landmarks.dat", dat);
  SelectPids({"CD0002", "CD0005"});
  fake.ui.msgAnswers.push_back(MsgResult::Yes);
  Run("mnuDelDesc");
  ASSERT_EQ(fake.ui.messages.size(), 2u);
  EXPECT_EQ(fake.ui.messages[0].text, "This will permanently remove these discriptions.\r\nContinue?");
  EXPECT_EQ(fake.ui.messages[0].title, "Delete Descriptions");
  EXPECT_EQ(fake.ui.messages[0].defaultButton, 2);
  EXPECT_EQ(fake.ui.messages[1].text, "2 description(s) deleted!");
  EXPECT_EQ(fake.ui.messages[1].title, "Delete Descriptions");
  // The others survive byte for byte.
  EXPECT_EQ(ReadWholeFile(session.dataset.DatFile), dat.substr(0, 466) + dat.substr(888, 1799 - 889) + dat.substr(2213));
  std::string text;
  EXPECT_EQ(GetDescription(session.dataset.markIndex, session.dataset.DatFile, "CD0005", text), "PID not found!");
  EXPECT_EQ(GetDescription(session.dataset.markIndex, session.dataset.DatFile, "CD0006", text), "");
  EXPECT_EQ(text, dat.substr(2213, 2634 - 2214));
  EXPECT_FALSE(fake.progress.Visible());
  EXPECT_FALSE(fake.ui.hourglass);
}

TEST_F(DatasetCommandsTest, DeleteAnsweredNoChangesNothing) {
  const std::string dat = Fixture("layouts.dat");
  Open("layouts.dat", dat);
  SelectPids({"AB1235"});
  fake.ui.msgAnswers.push_back(MsgResult::No);
  Run("mnuDelDesc");
  EXPECT_EQ(ReadWholeFile(session.dataset.DatFile), dat);
}

TEST_F(DatasetCommandsTest, TheSentinelsBlankItemDeletesTheFirstDescription) {
  const std::string dat = Fixture("layouts.dat");
  Open("layouts.dat", dat);
  fake.ui.modalActions.push_back([](DialogModel& model) {
    auto& list = dynamic_cast<FrmSelectPoints&>(model);
    EXPECT_EQ(list.caption, "Select Points to Delete");
    ASSERT_FALSE(list.lstPoints.empty());
    EXPECT_TRUE(list.lstPoints.back().find_first_not_of(' ') == std::string::npos);  // the sentinel's item
    list.selected.back() = true;
    list.cmdOkay_Click();
  });
  fake.ui.msgAnswers.push_back(MsgResult::Yes);
  Run("mnuDelDesc");
  EXPECT_EQ(ReadWholeFile(session.dataset.DatFile), dat.substr(2234));
}

TEST_F(DatasetCommandsTest, MoreThanAThousandDeletionsStopAtTheListsBound) {
  // 1001 small Descriptions of 3 lines each.
  std::string dat;
  for (int n = 0; n < 1001; ++n) {
    char pid[8];
    std::snprintf(pid, sizeof pid, "QQ%04d", n);
    dat += std::string("1        header\r\n ") + pid + "  DESIGNATION -  MARK " + std::to_string(n) + "\r\n " + pid +
           "  PID         -  " + pid + "\r\n";
  }
  Open("many.dat", dat);
  fake.ui.modalActions.push_back([](DialogModel& model) {
    auto& list = dynamic_cast<FrmSelectPoints&>(model);
    for (std::size_t i = 0; i + 1 < list.lstPoints.size(); ++i) list.selected[i] = true;  // all but the sentinel
    list.cmdOkay_Click();
  });
  fake.ui.msgAnswers.push_back(MsgResult::Yes);
  Run("mnuDelDesc");
  EXPECT_EQ(fake.ui.MessageTexts().back(), "Subscript out of range");
  // The first 1000 are blanks now (the file keeps its length); the last one is untouched.
  const std::string after = ReadWholeFile(session.dataset.DatFile);
  EXPECT_EQ(after.size(), dat.size());
  EXPECT_EQ(after.find("QQ0999"), std::string::npos);
  EXPECT_NE(after.find(" QQ1000  PID"), std::string::npos);
}

TEST_F(DatasetCommandsTest, FileIndexViewShowsTheIndexInSmallType) {
  Open("layouts.dat", Fixture("layouts.dat"));
  frmView& view = ViewForm(session, fake.platform);
  view.FontSize = 10;
  int sizeWhileShown = 0;
  fake.ui.modalActions.push_back([&](DialogModel& model) { sizeWhileShown = dynamic_cast<frmView&>(model).FontSize; });
  Run("mnuViewFileIndex");
  EXPECT_EQ(view.txtViewFile, ReadWholeFile(session.dataset.IndexFile));
  EXPECT_EQ(view.Tag, "ndx");
  EXPECT_EQ(view.strFileType, "ndx");
  EXPECT_EQ(sizeWhileShown, 8);
  EXPECT_EQ(view.FontSize, 10);
}

}  // namespace
}  // namespace benchlog

// The character check: reports of files built here against reports laid out by hand, and the
// command's progress dialog, report path and viewer.
#include <gtest/gtest.h>

#include <algorithm>

#include "app/command_registry.hpp"
#include "common/files.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_paths.hpp"
#include "session/command_table.hpp"
#include "session/frm_view.hpp"
#include "view/character_check.hpp"

namespace benchlog {
namespace {

using testing::FakePlatform;
using testing::TempFolder;

std::string EveryByte() {
  std::string bytes;
  for (int v = 0; v < 256; ++v) bytes += static_cast<char>(v);
  return bytes;
}

TEST(CharacterCheck, ReportsMatchTheReportsLaidOutByHand) {
  const struct {
    const char* name;
    std::string bytes;
  } cases[] = {
      {"every_byte", EveryByte()},
      {"utf8", "Caf\xC3\xA9 45\xC2\xB0\r\n"},
      {"utf16", std::string("\xFF\xFE" "A\0\r\0\n\0", 8)},
      {"empty", ""},
      {"no_final_end", "12~\n34"},
      {"lone_cr", "A\rB\r\n"},
  };
  for (const auto& c : cases) {
    TempFolder folder;
    FakePlatform fake;
    const std::string file = folder.Write(std::string(c.name) + ".dat", c.bytes);
    CheckFileBytes(file, folder.File("report.txt"), fake.progress, fake.ui);
    EXPECT_EQ(ReadWholeFile(folder.File("report.txt")),
              ReadWholeFile(testing::TestData("view/charcheck/" + std::string(c.name) + "-expected.txt")))
        << c.name;
  }
}

TEST(CharacterCheck, TheCommandShowsTheDialogOnlyPast1000BytesAndTheReportInTheViewer) {
  const struct {
    std::size_t size;
    bool dialog;
    int barMax, barEnd, doEvents;  // the bar runs from 1 to its maximum, one step per 1000 bytes
  } cases[] = {
      {1000, false, 0, 0, 1},
      {1001, true, 1, 1, 1},
      {4500, true, 4, 4, 4},  // steps at bytes 1000, 2000, 3000, then the bar is full
  };
  for (const auto& c : cases) {
    TempFolder folder;
    FakePlatform fake;
    testing::TestSession session;
    const std::string file = folder.Write("sheet.txt", std::string(c.size, 'X'));
    fake.ui.fileAnswers.push_back(file);
    fake.settings.SaveSetting("Settings", "LastDesFullName", "last.dat");
    fake.settings.SaveSetting("Settings", "LastDesDirectory", "/data/");
    fake.progress.max = 0;
    fake.progress.value = 0;
    BuildCommandTable().Run("mnuFindProbChar", session, fake.platform);

    ASSERT_EQ(fake.ui.fileDialogs.size(), 1u);
    const FileDialogRequest& asked = fake.ui.fileDialogs[0];
    EXPECT_EQ(asked.title, "Open Text File");
    EXPECT_EQ(asked.fileName + "|" + asked.initDir + "|" + asked.defaultExt, "last.dat|/data/|txt");
    const auto& shown = fake.progressHistory;
    EXPECT_EQ(std::any_of(shown.begin(), shown.end(), [](const Progress& p) { return p.Visible(); }), c.dialog)
        << c.size;
    if (c.dialog) {
      EXPECT_EQ(fake.progressHistory.front().lblProcessing, "Checking file byte-by-byte");
      EXPECT_EQ(fake.progressHistory.front().lblInfo, "This may take some time - be patient...");
    }
    EXPECT_EQ(fake.progress.max, c.barMax) << c.size;
    EXPECT_EQ(fake.progress.value, c.barEnd) << c.size;
    EXPECT_EQ(fake.ui.doEventsCalls, c.doEvents) << c.size;
    EXPECT_FALSE(fake.progress.Visible());
    EXPECT_FALSE(fake.ui.hourglass);

    const std::string report = folder.File("sheet-rpt.txt");
    const frmView& view = session.forms.Get<frmView>();
    ASSERT_EQ(fake.ui.modals.size(), 1u);
    EXPECT_EQ(fake.ui.modals[0], &view);
    EXPECT_EQ(view.Caption, report);
    EXPECT_EQ(view.txtViewFile, ReadWholeFile(report));
    EXPECT_NE(view.txtViewFile.find("This may be a binary file.\r\n"), std::string::npos);
  }
}

TEST(CharacterCheck, CancelEndsSilentlyAndAMissingFileShowsTheFailure) {
  FakePlatform fake;
  testing::TestSession session;
  fake.ui.fileAnswers.push_back("");
  BuildCommandTable().Run("mnuFindProbChar", session, fake.platform);
  EXPECT_TRUE(fake.ui.messages.empty());

  fake.ui.fileAnswers.push_back("/nowhere/sheet.txt");
  BuildCommandTable().Run("mnuFindProbChar", session, fake.platform);
  EXPECT_EQ(fake.ui.MessageTexts(), std::vector<std::string>{"File not found"});
  EXPECT_FALSE(fake.ui.hourglass);
  EXPECT_TRUE(fake.ui.modals.empty());
}

}  // namespace
}  // namespace benchlog

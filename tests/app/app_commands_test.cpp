#include <gtest/gtest.h>

#include "app/app_commands.hpp"
#include "app/command_registry.hpp"
#include "app/demo_dataset.hpp"
#include "app/frm_about.hpp"
#include "app/menu_tree.hpp"
#include "common/files.hpp"
#include "common/runtime_failure.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"

namespace benchlog {
namespace {
using testing::FakePlatform;
using testing::TempFolder;

struct CommandsTest : ::testing::Test {
  TempFolder app;
  FakePlatform fake{app.Path()};
  testing::TestSession session;
  CommandTable table = BuildCommandTable();
  CommandsTest() { InitMenuState(session.menu); }
  void Run(const std::string& name) { table.Run(name, session, fake.platform); }
};

TEST_F(CommandsTest, UnbuiltCommandSaysSoInAPlainBox) {
  CommandTable empty;
  empty.Run("mnuPlot", session, fake.platform);
  ASSERT_EQ(fake.ui.messages.size(), 1u);
  EXPECT_EQ(fake.ui.messages[0].text, "This command is not available yet.");
  EXPECT_EQ(fake.ui.messages[0].icon, MsgIcon::None);
  EXPECT_EQ(fake.ui.messages[0].buttons, MsgButtons::Ok);
}

TEST_F(CommandsTest, FailuresAreTrappedAtTheCommandLevel) {
  CommandTable commands;
  commands.Register("cancelled", [](Session&, Platform&) { throw CancelError(); });
  commands.Register("failed", [](Session&, Platform& p) {
    p.dlgProcessing.Show();
    throw SubscriptOutOfRange();
  });
  commands.Run("cancelled", session, fake.platform);
  EXPECT_TRUE(fake.ui.messages.empty());
  commands.Run("failed", session, fake.platform);
  ASSERT_EQ(fake.ui.messages.size(), 1u);
  EXPECT_EQ(fake.ui.messages[0].text, "Subscript out of range");
  EXPECT_FALSE(fake.progress.Visible());
}

TEST_F(CommandsTest, OpenDatAsksForADatasetAndRemembersIt) {
  app.Write("data/site.dat", "");
  fake.settings.SaveSetting("Settings", "LastDatFullName", app.Path() + "/data/old.dat");
  fake.ui.fileAnswers.push_back(app.Path() + "/data/site.dat");
  Run("mnuOpenDat");
  ASSERT_EQ(fake.ui.fileDialogs.size(), 1u);
  const auto& dialog = fake.ui.fileDialogs[0];
  EXPECT_FALSE(dialog.save);
  EXPECT_EQ(dialog.filter, "Data Files (*.dat)|*.dat");
  EXPECT_EQ(dialog.title, "Open Dat File");
  EXPECT_EQ(dialog.initDir, app.Path() + "/data/");
  EXPECT_EQ(dialog.defaultExt, "dat");

  const std::string path = app.Path() + "/data/site.dat";
  EXPECT_EQ(session.dataset.DatFile, path);
  EXPECT_EQ(session.dataset.DatFilePath, app.Path() + "/data/");
  EXPECT_EQ(fake.settings.GetSetting("Settings", "LastDatFullName", ""), path);
  EXPECT_EQ(fake.settings.GetSetting("Settings", "LastDatDirectory", ""), app.Path() + "/data/");
  EXPECT_EQ(fake.settings.GetSetting("Settings", "PhotoDir", ""), app.Path() + "/data/");
  EXPECT_EQ(session.shell.MRUList, std::vector<std::string>{path});
  EXPECT_EQ(session.menu["mnuFileMRUItem(1)"].caption, "&1 " + path);
}

TEST_F(CommandsTest, DatasetPathIsKeptInLowerCaseWhereThatNamesTheSameFile) {
  // The folder exists only in lower case, so the lower-case form of the name is the file to make.
  app.Write("data/x", "");
  fake.ui.fileAnswers.push_back(app.Path() + "/data/NEW.DAT");
  Run("mnuOpenDat");
  EXPECT_EQ(session.dataset.DatFile, app.Path() + "/data/new.dat");

  // A folder with capitals: the lower-case form would name nothing, so the path keeps its case.
  app.Write("Field/Site.dat", "");
  fake.ui.fileAnswers.push_back(app.Path() + "/Field/Site.dat");
  Run("mnuOpenDat");
  EXPECT_EQ(session.dataset.DatFile, app.Path() + "/Field/Site.dat");
}

TEST_F(CommandsTest, CancelledOpenChangesNothing) {
  fake.ui.fileAnswers.push_back("");  // cancel
  Run("mnuOpenDat");
  EXPECT_TRUE(session.dataset.DatFile.empty());
  EXPECT_TRUE(fake.ui.messages.empty());
  EXPECT_FALSE(fake.settings.Has("Settings", "LastDatFullName"));
}

TEST_F(CommandsTest, RecentEntryReopensAndMovesToTop) {
  app.Write("a.dat", "");
  app.Write("b.dat", "");
  fake.ui.fileAnswers = {app.File("a.dat"), app.File("b.dat")};
  Run("mnuOpenDat");
  Run("mnuOpenDat");
  ASSERT_EQ(session.shell.MRUList.front(), app.File("b.dat"));
  Run("mnuFileMRUItem(2)");
  EXPECT_EQ(session.dataset.DatFile, app.File("a.dat"));
  EXPECT_EQ(session.shell.MRUList, (std::vector<std::string>{app.File("a.dat"), app.File("b.dat")}));
  EXPECT_EQ(fake.settings.GetSetting("Settings", "LastDatFullName", ""), app.File("a.dat"));
}

TEST_F(CommandsTest, ColoursAreChosenAndKept) {
  fake.ui.colorAnswers = {std::uint32_t{0x0000FF}, std::nullopt};
  Run("mnuSetBackColor");
  EXPECT_EQ(session.shell.backColor, 255u);
  EXPECT_EQ(fake.settings.GetSetting("Settings", "BackColor", ""), "255");
  Run("mnuSetForColor");  // cancelled
  EXPECT_EQ(session.shell.foreColor, 0u);
  EXPECT_FALSE(fake.settings.Has("Settings", "ForeColor"));
  EXPECT_EQ(fake.ui.colorTitles, (std::vector<std::string>{"Select Background Color", "Select Foreground Color"}));
}

TEST_F(CommandsTest, HelpOpensTheManualNamedByTheConfiguration) {
  app.Write("manual/index.html", "<html></html>");
  session.config.helpFile = "MANUAL/INDEX.HTML";  // as the configuration file gives it
  Run("mnuBenchlogHlp");
  EXPECT_EQ(fake.ui.helpShown, std::vector<std::string>{app.Path() + "/manual/index.html"});
}

TEST_F(CommandsTest, AboutShowsItsTextsAndSystemInformation) {
  fake.ui.modalActions.push_back([&](DialogModel& model) {
    auto& about = dynamic_cast<FrmAbout&>(model);
    EXPECT_EQ(about.caption, "About Benchlog");
    EXPECT_EQ(about.lblVersion, "Version 1.0.0");
    EXPECT_EQ(about.lblDescription.rfind("This program is designed for extracting data from OCO MKDATA datasets."
                                         "  Report trouble or suggestions for enhancements to:   ",
                                         0),
              0u);
    about.cmdSysInfo_Click(fake.platform);
  });
  Run("mnuHelpAbout");
  EXPECT_EQ(fake.ui.MessageTexts(), std::vector<std::string>{"System Information Is Unavailable At This Time"});
}

TEST_F(CommandsTest, ExitAsksTheWindowToClose) {
  Run("mnuExit");
  EXPECT_TRUE(session.shell.quitRequested);
}

TEST(DemoDataset, FirstRunCopiesTheSampleOnce) {
  TempFolder folder;
  folder.Write("samples/sample.dat", "1      header\r\n");
  folder.Write("samples/AB1234ph.jpg", "jpeg");
  testing::MemorySettings settings;
  const std::string demo = folder.File("demo");
  const std::string path = PrepareDemoDataset(settings, folder.File("samples"), demo);
  EXPECT_EQ(path, demo + "/sample.dat");
  EXPECT_EQ(ReadWholeFile(path), "1      header\r\n");
  EXPECT_TRUE(FileExists(demo + "/AB1234ph.jpg"));
  EXPECT_EQ(settings.GetSetting("Settings", "LastDatFullName", ""), path);
  EXPECT_EQ(settings.GetSetting("Settings", "PhotoDir", ""), demo + "/");

  // A dataset is chosen now: nothing more happens.
  EXPECT_EQ(PrepareDemoDataset(settings, folder.File("samples"), demo), "");
}

}  // namespace
}  // namespace benchlog

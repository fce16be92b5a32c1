#include <gtest/gtest.h>

#include <filesystem>

#include "app/app_commands.hpp"
#include "app/command_registry.hpp"
#include "app/configuration_file.hpp"
#include "app/demo_dataset.hpp"
#include "app/frm_about.hpp"
#include "app/main_window.hpp"
#include "app/program_folder.hpp"
#include "app/menu_tree.hpp"
#include "app/recent_files.hpp"
#include "common/files.hpp"
#include "common/runtime_failure.hpp"
#include "fakes/fakes.hpp"
#include "common/text.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_rows.hpp"
#include "platform/window_placement.hpp"

namespace benchlog {
namespace {

using testing::FakePlatform;
using testing::TempFolder;
using testing::MemorySettings;
namespace fs = std::filesystem;

// The items of a table field, ";" between them.
std::vector<std::string> Items(const std::string& text) { return text.empty() ? std::vector<std::string>{} : Split(text, ";"); }

std::vector<long> Fields(const WindowPlacement& p) { return {p.state, p.top, p.left, p.height, p.width}; }

// The program's folder, with or without its configuration and support files.
struct AppScene {
  TempFolder app;
  FakePlatform fake{app.Path()};
  testing::TestSession session;
  WindowPlacement placement;
  Configuration config;

  void WriteSupportFiles() {
    for (auto name = SupportFileNames(); *name; ++name) app.Write(*name, "x");
  }
  void WriteAllFiles() {
    app.Write("Benchlog.ini", "ELLIPSOID A=6378137\r\nELLIPSOID E2=0.00669438002290\r\n");
    WriteSupportFiles();
  }
};

struct AppFolder : ::testing::Test, AppScene {
  CommandTable table = BuildCommandTable();
  void Run(const std::string& name) { table.Run(name, session, fake.platform); }
};
using CommandsTest = AppFolder;

TEST_F(AppFolder, FirstRunDefaults) {
  WriteAllFiles();
  ASSERT_TRUE(LoadMainWindow(session, fake.platform, placement));
  EXPECT_EQ(Fields(placement), (std::vector<long>{kNormal, 0, 0, 4000, 4000}));
  EXPECT_EQ(session.shell.caption, "Benchlog Version 1.0.0");
  EXPECT_EQ(std::pair(session.shell.foreColor, session.shell.backColor), std::pair(0u, 16777215u));
  EXPECT_EQ(session.config.helpFile, app.Path() + "/Benchlog.chm");
  EXPECT_TRUE(session.dataset.DatFile.empty());
  EXPECT_FALSE(session.menu["mnuLatLoninTxt"].visible);
  EXPECT_TRUE(session.menu["mnuExport"].visible && session.menu["mnuExport"].enabled);
  EXPECT_TRUE(fake.ui.messages.empty());
  // The configured ellipsoid, which the export reads.
  EXPECT_DOUBLE_EQ(session.config.ellipsoidA, 6378137.0);
  EXPECT_DOUBLE_EQ(session.config.ellipsoidE2, 0.00669438002290);
}

TEST_F(AppFolder, SavedStateIsRead) {
  WriteAllFiles();
  for (const auto& [key, value] : {std::pair{"WindowState", "2"}, {"Top", "1500"}, {"Left", "300"}, {"Height", "9000"},
                                    {"Width", "12000"}})
    fake.settings.SaveSetting("frmMain", key, value);
  fake.settings.SaveSetting("Settings", "BackColor", "255");
  fake.settings.SaveSetting("MRUList", "Name1", "/x/one.dat");
  ASSERT_TRUE(LoadMainWindow(session, fake.platform, placement));
  EXPECT_EQ(Fields(placement), (std::vector<long>{kMaximized, 1500, 300, 9000, 12000}));
  EXPECT_EQ(session.shell.backColor, 255u);
  EXPECT_EQ(session.menu["mnuFileMRUItem(1)"].caption, "&1 /x/one.dat");
}

TEST_F(AppFolder, MissingFilesEndTheProgramWithACriticalBox) {
  app.Write("Benchlog.ini", "ELLIPSOID E2=0.0067\r\n");
  EXPECT_FALSE(LoadMainWindow(session, fake.platform, placement));
  ASSERT_EQ(fake.ui.messages.size(), 1u);
  const auto& box = fake.ui.messages[0];
  EXPECT_EQ(box.icon, MsgIcon::Critical);
  EXPECT_EQ(box.title, "Benchlog");
  // The list itself, in its order, is checked by the CheckLoadFiles case table.
  EXPECT_EQ(box.text, "The following files were not found:\r\n" + CheckLoadFiles(fake.platform, config));
}

// E2 of 1 (a division by zero) or 1.5 (the square root of a negative) fails before the support
// files are tested, and the load goes on without a word.
TEST(FailingEccentricity, IsIgnoredAndSkipsTheFileTest) {
  for (const char* e2 : {"1", "1.5"}) {
    AppScene s;
    s.app.Write("Benchlog.ini", "ELLIPSOID E2=" + std::string(e2) + "\r\n");
    EXPECT_TRUE(LoadMainWindow(s.session, s.fake.platform, s.placement)) << e2;
    EXPECT_TRUE(s.fake.ui.messages.empty()) << e2;
    EXPECT_EQ(s.session.config.ellipsoidEp2, 0.0) << e2;
  }
}

TEST(ClosingStep, SavesPositionOnlyInTheNormalState) {
  testing::MemorySettings settings;
  SaveMainWindowPlacement(settings, {kNormal, 150, 300, 6000, 8000});
  EXPECT_EQ(settings.GetSetting("frmMain", "WindowState", ""), "0");
  // Closed maximised: the last normal geometry stays, the state says maximised.
  SaveMainWindowPlacement(settings, {kMaximized, 0, 0, 12000, 16000});
  for (const auto& [key, value] : {std::pair{"Top", "150"}, {"Left", "300"}, {"Height", "6000"}, {"Width", "8000"},
                                    {"WindowState", "2"}})
    EXPECT_EQ(settings.GetSetting("frmMain", key, ""), value) << key;
}

TEST(WindowPlacement, SavedGeometryIsBroughtInsideTheScreen) {
  for (const auto& c : testing::ReadRows("app/fit_inside.txt", 6)) {
    std::vector<long> n;
    for (const auto& field : c) n.push_back(std::stol(field));
    const ScreenRect got = FitInside({n[0], n[1], n[2], n[3]}, {n[4], n[5], n[6], n[7]});
    EXPECT_EQ((std::vector<long>{got.left, got.top, got.width, got.height}), std::vector<long>(n.begin() + 8, n.end()))
        << c[0] << "," << c[1];
  }
}

TEST(Splash, FirstRunWaitsFiveSecondsLaterRunsTwo) {
  testing::MemorySettings settings;
  for (const int seconds : {5, 2}) {
    testing::ManualClock clock;
    EXPECT_EQ(SplashSeconds(settings), seconds);
    int paints = 0;
    WaitForSplash(clock, SplashSeconds(settings), [&] { ++paints; });
    EXPECT_EQ(clock.slept, std::chrono::seconds(seconds));
    EXPECT_EQ(paints, seconds * 50);  // every 20 ms, from the start
    settings.SaveSetting("frmMain", "Top", "0");  // any saved value counts, even 0
  }
}

TEST(CheckLoadFiles, GivesTheConfigurationAndMissingFilesOfTheCaseTable) {
  for (auto c : testing::ReadRows("app/load_files.txt", 7, '|')) {
    AppScene folder;
    for (auto& field : c) field = ReplaceAll(field, "$APP", folder.app.Path());
    if (c[0] != "-") folder.app.Write("Benchlog.ini", c[0]);
    if (c[1] == "all") folder.WriteSupportFiles();
    for (const auto& name : Items(c[1] == "all" ? "" : c[1])) folder.app.Write(name, "x");
    EXPECT_EQ(CheckLoadFiles(folder.fake.platform, folder.config), c[2]) << c[0];
    EXPECT_EQ(folder.fake.platform.paths.supportPath, c[6].empty() ? folder.app.Path() + "/" : c[6]) << c[0];
    EXPECT_NEAR(folder.config.ellipsoidE2, std::stod(c[3]), 1e-15) << c[0];
    EXPECT_NEAR(folder.config.ellipsoidEp2, std::stod(c[4]), 1e-14) << c[0];
    const Configuration& k = folder.config;
    EXPECT_EQ(Join({k.country, k.state, k.units, k.hemi1, k.hemi2, k.helpFile, std::to_string(k.ellipsoidA)}, ";"), c[5]) << c[0];
  }
}

TEST(RecentFiles, GiveTheListsOfTheCaseTable) {
  for (const auto& c : testing::ReadRows("app/recent_files.txt", 5, '|')) {
    testing::TestSession session;
    MemorySettings settings;
    for (const auto& entry : Items(c[0])) settings.SaveSetting("MRUList", entry.substr(0, entry.find('=')), entry.substr(entry.find('=') + 1));
    for (const auto& step : Items(c[1])) {
      if (step == "load") LoadMRUList(session, settings);
      else AddToMRUList(session, settings, step.substr(4));
    }
    EXPECT_EQ(session.shell.MRUList, Items(c[2])) << c[1];
    std::vector<std::string> captions;
    for (int n = 1; n <= 8; ++n)
      if (session.menu[MruItemName(n)].visible) captions.push_back(session.menu[MruItemName(n)].caption);
    EXPECT_EQ(captions, Items(c[3])) << c[1];
    EXPECT_EQ(session.menu["mnuFileMRUSep"].visible, c[4] == "1") << c[1];
    for (const auto& entry : Items(c[5]))
      EXPECT_EQ(settings.GetSetting("MRUList", entry.substr(0, entry.find('=')), ""), entry.substr(entry.find('=') + 1)) << c[1];
  }
}

// Failures are trapped at the command level in a plain box, and a menu name the tree does not
// declare fails the command that uses it; a name with no command is a wiring fault.
TEST_F(CommandsTest, FailuresEndInABoxAndAnUnknownCommandIsAFault) {
  CommandTable commands;
  commands.Register("cancelled", [](Session&, Platform&) { throw CancelError(); });
  commands.Register("failed", [](Session&, Platform& p) {
    p.dlgProcessing.Show();
    throw SubscriptOutOfRange();
  });
  commands.Register("misspelt", [](Session& s, Platform&) { s.menu["mnuViewHCL"].enabled = true; });
  commands.Run("cancelled", session, fake.platform);
  EXPECT_TRUE(fake.ui.messages.empty());
  EXPECT_THROW(commands.Run("mnuPlot", session, fake.platform), std::logic_error);
  commands.Run("failed", session, fake.platform);
  ASSERT_EQ(fake.ui.messages.size(), 1u);
  EXPECT_EQ(fake.ui.messages[0].icon, MsgIcon::None);
  EXPECT_EQ(fake.ui.messages[0].buttons, MsgButtons::Ok);
  EXPECT_FALSE(fake.progress.Visible());
  commands.Run("misspelt", session, fake.platform);
  EXPECT_EQ(fake.ui.MessageTexts(), (std::vector<std::string>{"Subscript out of range",
                                                               "The menu has no entry named \"mnuViewHCL\"."}));
  EXPECT_FALSE(session.menu.Has("mnuViewHCL"));
  EXPECT_TRUE(session.menu.Has("mnuViewHcl"));
}

TEST_F(CommandsTest, OpenDatAsksForADatasetAndRemembersIt) {
  app.Write("data/site.dat", "");
  fake.settings.SaveSetting("Settings", "LastDatFullName", app.Path() + "/data/old.dat");
  fake.ui.fileAnswers.push_back(app.Path() + "/data/site.dat");
  Run("mnuOpenDat");
  ASSERT_EQ(fake.ui.fileDialogs.size(), 1u);
  EXPECT_EQ(testing::Describe(fake.ui.fileDialogs[0]), "open|Open Dat File|Data Files (*.dat)|*.dat|" + app.Path() + "/data/");
  EXPECT_EQ(fake.ui.fileDialogs[0].defaultExt, "dat");

  const std::string path = app.Path() + "/data/site.dat";
  EXPECT_EQ(session.dataset.DatFile, path);
  EXPECT_EQ(session.dataset.DatFilePath, app.Path() + "/data/");
  EXPECT_EQ(fake.settings.GetSetting("Settings", "LastDatFullName", ""), path);
  EXPECT_EQ(fake.settings.GetSetting("Settings", "LastDatDirectory", ""), app.Path() + "/data/");
  EXPECT_EQ(fake.settings.GetSetting("Settings", "PhotoDir", ""), app.Path() + "/data/");
  EXPECT_EQ(session.shell.MRUList, std::vector<std::string>{path});
  EXPECT_EQ(session.menu["mnuFileMRUItem(1)"].caption, "&1 " + path);

  const std::size_t shown = fake.ui.messages.size();
  fake.ui.fileAnswers.push_back("");  // cancelled: nothing changes
  Run("mnuOpenDat");
  EXPECT_EQ(session.dataset.DatFile, path);
  EXPECT_EQ(session.shell.MRUList, std::vector<std::string>{path});
  EXPECT_EQ(fake.ui.messages.size(), shown);
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

// The program's folder: the executable's own when it holds the configuration and may be written,
// else the user's folder, filled from the installed data folder without overwriting.
TEST(ProgramFolder, IsTheExecutablesFolderOnlyWhenItHoldsTheConfigurationAndMayBeWritten) {
  struct Case { bool iniBesideExe, exeWritable, expectExeFolder; };
  for (const Case c : {Case{true, true, true}, Case{true, false, false}, Case{false, true, false}}) {
    SCOPED_TRACE(::testing::Message() << "ini " << c.iniBesideExe << ", writable " << c.exeWritable);
    TempFolder root;
    root.Write("share/benchlog/Benchlog.ini", "ELLIPSOID A=6378137\r\n");
    root.Write("share/benchlog/Towns.txt", "INSTALLED\r\n");
    root.Write("share/benchlog/samples/sample.dat", "SAMPLE\r\n");
    root.Write("user/Towns.txt", "UPDATED BY THE USER\r\n");
    const std::string exe = root.File("bin"), user = root.File("user");
    root.Write(c.iniBesideExe ? "bin/Benchlog.ini" : "bin/benchlog", "");
    if (!c.exeWritable)
      fs::permissions(exe, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write, fs::perm_options::remove);

    const std::string chosen = ChooseProgramFolder(exe, user);
    fs::permissions(exe, fs::perms::owner_write, fs::perm_options::add);
    EXPECT_EQ(chosen, c.expectExeFolder ? exe : user);
    EXPECT_EQ(FileExists(root.File("user/Benchlog.ini")), !c.expectExeFolder);
    EXPECT_EQ(FileExists(root.File("user/samples/sample.dat")), !c.expectExeFolder);
    EXPECT_EQ(ReadWholeFile(root.File("user/Towns.txt")), "UPDATED BY THE USER\r\n");
  }
}

TEST(ProgramFolder, InstalledDataLiesInShareBesideTheBinFolder) {
  EXPECT_EQ(InstalledDataFolder("/usr/bin"), "/usr/share/benchlog");
  EXPECT_EQ(InstalledDataFolder("/opt/survey/bin/"), "/opt/survey/share/benchlog");
}

}  // namespace
}  // namespace benchlog

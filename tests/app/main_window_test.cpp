#include <gtest/gtest.h>

#include "app/main_window.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"

namespace benchlog {
namespace {
using testing::FakePlatform;
using testing::TempFolder;

struct LoadStepTest : ::testing::Test {
  TempFolder app;
  FakePlatform fake{app.Path()};
  testing::TestSession session;
  WindowPlacement placement;

  void WriteAllFiles(const std::string& ini = "ELLIPSOID A=6378137\r\nELLIPSOID E2=0.00669438002290\r\n") {
    app.Write("Benchlog.ini", ini);
    for (const char* name : {"Contrib.dat", "Country.dat", "Groups.dat", "Monument_Category.dat", "Zones.txt",
                             "Horizontal_Datum.dat", "Ellipsoid.dat", "Towns.txt"})
      app.Write(name, "x");
  }
};

TEST_F(LoadStepTest, FirstRunDefaults) {
  WriteAllFiles();
  ASSERT_TRUE(LoadMainWindow(session, fake.platform, placement));
  EXPECT_EQ(placement.state, kNormal);
  EXPECT_EQ(placement.top, 0);
  EXPECT_EQ(placement.left, 0);
  EXPECT_EQ(placement.height, 4000);
  EXPECT_EQ(placement.width, 4000);
  EXPECT_EQ(session.shell.caption, "Benchlog Version 1.0.0");
  EXPECT_EQ(session.shell.foreColor, 0u);
  EXPECT_EQ(session.shell.backColor, 16777215u);
  EXPECT_EQ(session.config.helpFile, app.Path() + "/Benchlog.chm");
  EXPECT_TRUE(session.dataset.DatFile.empty());
  EXPECT_FALSE(session.menu["mnuLatLoninTxt"].visible);
  EXPECT_TRUE(session.menu["mnuExport"].visible);
  EXPECT_TRUE(session.menu["mnuExport"].enabled);
  EXPECT_TRUE(fake.ui.messages.empty());
  // The configured ellipsoid, which the export reads.
  EXPECT_DOUBLE_EQ(session.config.ellipsoidA, 6378137.0);
  EXPECT_DOUBLE_EQ(session.config.ellipsoidE2, 0.00669438002290);
}

TEST_F(LoadStepTest, SavedStateIsRead) {
  WriteAllFiles();
  fake.settings.SaveSetting("frmMain", "WindowState", "2");
  fake.settings.SaveSetting("frmMain", "Top", "1500");
  fake.settings.SaveSetting("frmMain", "Left", "300");
  fake.settings.SaveSetting("frmMain", "Height", "9000");
  fake.settings.SaveSetting("frmMain", "Width", "12000");
  fake.settings.SaveSetting("Settings", "BackColor", "255");
  fake.settings.SaveSetting("MRUList", "Name1", "/x/one.dat");
  ASSERT_TRUE(LoadMainWindow(session, fake.platform, placement));
  EXPECT_EQ(placement.state, kMaximized);
  EXPECT_EQ(placement.top, 1500);
  EXPECT_EQ(placement.left, 300);
  EXPECT_EQ(placement.height, 9000);
  EXPECT_EQ(placement.width, 12000);
  EXPECT_EQ(session.shell.backColor, 255u);
  EXPECT_EQ(session.menu["mnuFileMRUItem(1)"].caption, "&1 /x/one.dat");
}

TEST_F(LoadStepTest, MissingFilesEndTheProgramWithACriticalBox) {
  app.Write("Benchlog.ini", "ELLIPSOID E2=0.0067\r\n");
  EXPECT_FALSE(LoadMainWindow(session, fake.platform, placement));
  ASSERT_EQ(fake.ui.messages.size(), 1u);
  const auto& box = fake.ui.messages[0];
  EXPECT_EQ(box.icon, MsgIcon::Critical);
  EXPECT_EQ(box.title, "Benchlog");
  EXPECT_EQ(box.text,
            "The following files were not found:\r\nContrib.dat\r\nCountry.dat\r\nGroups.dat\r\n"
            "Monument_Category.dat\r\nZones.txt\r\nHorizontal_Datum.dat\r\nEllipsoid.dat\r\nTowns.txt\r\n");
}

TEST_F(LoadStepTest, FailingEccentricityIsIgnoredAndSkipsTheFileTest) {
  // E2 of 1 fails before the support files are tested, and the load goes on without a word.
  app.Write("Benchlog.ini", "ELLIPSOID E2=1\r\n");
  EXPECT_TRUE(LoadMainWindow(session, fake.platform, placement));
  EXPECT_TRUE(fake.ui.messages.empty());
  EXPECT_EQ(session.config.ellipsoidEp2, 0.0);
}

TEST(ClosingStep, SavesPositionOnlyInTheNormalState) {
  testing::MemorySettings settings;
  SaveMainWindowPlacement(settings, {kNormal, 150, 300, 6000, 8000});
  EXPECT_EQ(settings.GetSetting("frmMain", "Top", ""), "150");
  EXPECT_EQ(settings.GetSetting("frmMain", "Left", ""), "300");
  EXPECT_EQ(settings.GetSetting("frmMain", "Height", ""), "6000");
  EXPECT_EQ(settings.GetSetting("frmMain", "Width", ""), "8000");
  EXPECT_EQ(settings.GetSetting("frmMain", "WindowState", ""), "0");

  // Closed maximised: the last normal geometry stays, the state says maximised.
  SaveMainWindowPlacement(settings, {kMaximized, 0, 0, 12000, 16000});
  EXPECT_EQ(settings.GetSetting("frmMain", "Height", ""), "6000");
  EXPECT_EQ(settings.GetSetting("frmMain", "Width", ""), "8000");
  EXPECT_EQ(settings.GetSetting("frmMain", "WindowState", ""), "2");
}

TEST(Splash, FirstRunWaitsFiveSecondsLaterRunsTwo) {
  testing::MemorySettings settings;
  testing::ManualClock clock;
  EXPECT_EQ(SplashSeconds(settings), 5);
  WaitForSplash(clock, SplashSeconds(settings));
  EXPECT_EQ(clock.slept, std::chrono::seconds(5));

  settings.SaveSetting("frmMain", "Top", "0");  // any saved value counts, even 0
  EXPECT_EQ(SplashSeconds(settings), 2);
  clock.slept = {};
  WaitForSplash(clock, SplashSeconds(settings));
  EXPECT_EQ(clock.slept, std::chrono::seconds(2));
}

}  // namespace
}  // namespace benchlog

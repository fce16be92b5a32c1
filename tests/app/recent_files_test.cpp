#include <gtest/gtest.h>

#include "app/menu_tree.hpp"
#include "app/recent_files.hpp"
#include "fakes/fakes.hpp"

namespace benchlog {
namespace {
using testing::MemorySettings;

struct RecentFilesTest : ::testing::Test {
  testing::TestSession session;
  MemorySettings settings;
  RecentFilesTest() { InitMenuState(session.menu); }
  std::vector<std::string> Visible() {
    std::vector<std::string> captions;
    for (int n = 1; n <= 8; ++n)
      if (session.menu[MruItemName(n)].visible) captions.push_back(session.menu[MruItemName(n)].caption);
    return captions;
  }
};

TEST_F(RecentFilesTest, EmptyListHidesEntriesAndSeparator) {
  LoadMRUList(session, settings);
  EXPECT_TRUE(session.shell.MRUList.empty());
  EXPECT_TRUE(Visible().empty());
  EXPECT_FALSE(session.menu["mnuFileMRUSep"].visible);
}

TEST_F(RecentFilesTest, LoadKeepsNonEmptyNamesInOrder) {
  settings.SaveSetting("MRUList", "Name1", "/d/a.dat");
  settings.SaveSetting("MRUList", "Name2", "");
  settings.SaveSetting("MRUList", "Name3", "/d/c.dat");
  LoadMRUList(session, settings);
  EXPECT_EQ(session.shell.MRUList, (std::vector<std::string>{"/d/a.dat", "/d/c.dat"}));
  EXPECT_EQ(Visible(), (std::vector<std::string>{"&1 /d/a.dat", "&2 /d/c.dat"}));
  EXPECT_TRUE(session.menu["mnuFileMRUSep"].visible);
}

TEST_F(RecentFilesTest, NinthFilePushesTheOldestOut) {
  for (int n = 1; n <= 9; ++n) AddToMRUList(session, settings, "/d/f" + std::to_string(n) + ".dat");
  ASSERT_EQ(session.shell.MRUList.size(), 8u);
  EXPECT_EQ(session.shell.MRUList.front(), "/d/f9.dat");
  EXPECT_EQ(session.shell.MRUList.back(), "/d/f2.dat");
  EXPECT_EQ(settings.GetSetting("MRUList", "Name8", ""), "/d/f2.dat");
  EXPECT_EQ(Visible().size(), 8u);
}

TEST_F(RecentFilesTest, ReopenedFileMovesToTopInItsNewForm) {
  AddToMRUList(session, settings, "/d/A.dat");
  AddToMRUList(session, settings, "/d/b.dat");
  AddToMRUList(session, settings, "/d/c.dat");
  AddToMRUList(session, settings, "/d/a.dat");  // equal to the first entry in lower case
  EXPECT_EQ(session.shell.MRUList, (std::vector<std::string>{"/d/a.dat", "/d/c.dat", "/d/b.dat"}));
  EXPECT_EQ(Visible().front(), "&1 /d/a.dat");
}

TEST_F(RecentFilesTest, ShorterListLeavesHigherKeysInPlace) {
  settings.SaveSetting("MRUList", "Name1", "/d/a.dat");
  settings.SaveSetting("MRUList", "Name2", "/d/b.dat");
  settings.SaveSetting("MRUList", "Name5", "/d/stale.dat");
  LoadMRUList(session, settings);  // Name5 is read as the third entry
  AddToMRUList(session, settings, "/d/b.dat");
  EXPECT_EQ(settings.GetSetting("MRUList", "Name1", ""), "/d/b.dat");
  EXPECT_EQ(settings.GetSetting("MRUList", "Name2", ""), "/d/a.dat");
  EXPECT_EQ(settings.GetSetting("MRUList", "Name3", ""), "/d/stale.dat");
  EXPECT_EQ(settings.GetSetting("MRUList", "Name5", ""), "/d/stale.dat");
}

}  // namespace
}  // namespace benchlog

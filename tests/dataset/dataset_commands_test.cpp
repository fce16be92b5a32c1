#include <gtest/gtest.h>

#include "app/command_registry.hpp"
#include "common/files.hpp"
#include "session/dataset_paths.hpp"
#include "dataset/dataset_test_support.hpp"
#include "fakes/fakes.hpp"

namespace benchlog {
namespace {

using testing::FakePlatform;
using testing::Fixture;
using testing::TempFolder;

TEST(Reindex, RebuildsBehindTheProgressDialog) {
  TempFolder folder;
  FakePlatform fake(folder.Path());
  const std::string landmarks = Fixture("landmarks.dat");
  testing::TestSession session;
  session.dataset.DatFile = folder.Write("three.dat", landmarks + landmarks + landmarks);  // 10,539 bytes
  session.dataset.IndexFile = IndexPathFor(folder.Path(), session.dataset.DatFile);
  const CommandTable table = BuildCommandTable();
  ASSERT_TRUE(table.Has("mnuReindex"));

  table.Run("mnuReindex", session, fake.platform);

  EXPECT_EQ(fake.ui.MessageTexts(), std::vector<std::string>{"Index file created."});
  ASSERT_GE(fake.progressHistory.size(), 3u);
  const Progress& shown = fake.progressHistory.front();
  EXPECT_TRUE(shown.Visible());
  EXPECT_EQ(shown.lblProcessing, "Creating Index");
  EXPECT_EQ(shown.lblInfo, "Please wait...");
  EXPECT_EQ(shown.max, 2);
  EXPECT_EQ(shown.value, 1);
  EXPECT_EQ(fake.progressHistory[1].value, 2);  // one step, then the bar is full
  EXPECT_FALSE(fake.progress.Visible());
  EXPECT_EQ(fake.ui.doEventsCalls, 1);
  EXPECT_EQ(session.dataset.markIndex.Size(), 26u);  // 24 Descriptions, built layout
  EXPECT_TRUE(FileExists(folder.File("three.ndx")));
}

TEST(Reindex, NeedsADataset) {
  struct Case {
    const char* datFile;
    const char* message;
  };
  const Case cases[] = {{"", "No mkdata file open!"}, {"/no/such/folder/gone.dat", "File not found"}};
  for (const auto& c : cases) {
    TempFolder folder;
    FakePlatform fake(folder.Path());
    testing::TestSession session;
    session.dataset.DatFile = c.datFile;
    BuildCommandTable().Run("mnuReindex", session, fake.platform);
    EXPECT_EQ(fake.ui.MessageTexts(), std::vector<std::string>{c.message}) << c.datFile;
    EXPECT_FALSE(fake.progress.Visible());
  }
}

}  // namespace
}  // namespace benchlog

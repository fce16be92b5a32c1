#include <gtest/gtest.h>

#include <filesystem>

#include "common/files.hpp"
#include "dataset/compress_dataset.hpp"
#include "dataset/dataset_test_support.hpp"
#include "fakes/fakes.hpp"

namespace benchlog {
namespace {

using testing::FakePlatform;
using testing::Fixture;
using testing::TempFolder;

TEST(CompressDataset, KeepsEveryLineWithTextAndNothingElse) {
  struct Case {
    const char* name;
    std::string before, after;
  };
  const Case cases[] = {
      {"blank lines go", "1      \r\n   \r\n AB1 x\r\n\r\n", "1\r\n AB1 x\r\n"},
      {"trailing blanks go, leading stay", "  lead  \r\n    \r\n", "  lead\r\n"},
      {"stray LFs go, inside and alone", " A\nB\r\n\n\r\n\n", " AB\r\n"},
      {"a bare CR ends a line", " one\r two", " one\r\n two\r\n"},
      {"no blank lines: only trailing blanks change", " a \r\n b\r\n", " a\r\n b\r\n"},
      {"all blank", "     \r\n  \r\n", ""},
      {"empty", "", ""},
  };
  for (const auto& c : cases) {
    TempFolder folder;
    const std::string dat = folder.Write("d.dat", c.before);
    FakePlatform fake(folder.Path());
    EXPECT_EQ(CompressDataset(dat, fake.platform), "") << c.name;
    EXPECT_EQ(ReadWholeFile(dat), c.after) << c.name;
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), std::filesystem::directory_iterator()), 1)
        << c.name;  // no work file stays
    EXPECT_TRUE(fake.ui.messages.empty()) << c.name;
  }
}

// 80 lines of 98 characters and CR LF: 8000 bytes.
std::string Lines(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += " " + std::string(97, 'x') + "\r\n";
  return text;
}

TEST(CompressDataset, ShowsProgressOnlyAbove8000Bytes) {
  struct Case {
    std::string text;
    bool shown;
    int max;
  };
  const Case cases[] = {
      {Lines(80), false, 0},
      {Lines(80) + "x", true, 1},
      {Lines(250), true, 3},  // 25,000 bytes: bar to 3; lines 100 and 200 set it to 1 and 2
  };
  for (const auto& c : cases) {
    TempFolder folder;
    const std::string dat = folder.Write("d.dat", c.text);
    FakePlatform fake(folder.Path());
    fake.progress.max = 0;
    EXPECT_EQ(CompressDataset(dat, fake.platform), "");
    EXPECT_FALSE(fake.progress.Visible());
    bool shown = false;
    for (const auto& p : fake.progressHistory) shown = shown || p.Visible();
    EXPECT_EQ(shown, c.shown) << c.text.size();
    if (!c.shown) continue;
    const Progress& first = fake.progressHistory.front();
    EXPECT_EQ(first.caption, "Compress MKDATA file");
    EXPECT_EQ(first.lblProcessing, "Compressing File");
    EXPECT_EQ(first.lblInfo, "Please wait...");
    EXPECT_EQ(first.max, c.max);
    EXPECT_EQ(fake.ui.doEventsCalls, 1);
  }
  TempFolder folder;
  FakePlatform fake(folder.Path());
  CompressDataset(folder.Write("d.dat", Lines(250)), fake.platform);
  std::vector<int> values;
  for (const auto& p : fake.progressHistory) values.push_back(p.value);
  EXPECT_EQ(values, (std::vector<int>{0, 0, 1, 2, 2}));  // show, refresh, two steps, hide
}

TEST(CompressDataset, AMissingDatasetIsReportedAtTheReadingStage) {
  TempFolder folder;
  FakePlatform fake(folder.Path());
  EXPECT_EQ(CompressDataset(folder.File("gone.dat"), fake.platform), "Unable to open .dat file for reading.");
  ASSERT_EQ(fake.ui.messages.size(), 1u);
  EXPECT_EQ(fake.ui.messages[0].text, "Unable to open .dat file for reading.\r\nFile not found");
  EXPECT_FALSE(FileExists(folder.File("gone.dat")));
}

// A read-only dataset is not replaced: the dataset is untouched and no work file stays.
TEST(CompressDataset, AReadOnlyDatasetIsLeftWhole) {
  TempFolder folder;
  const std::string dat = folder.Write("d.dat", " keep  \r\n  \r\n");
  std::filesystem::permissions(dat, std::filesystem::perms::owner_read);
  FakePlatform fake(folder.Path());
  fake.progress.Show();
  EXPECT_EQ(CompressDataset(dat, fake.platform), "Unable to open a file in the product directory for writing.");
  EXPECT_EQ(fake.ui.MessageTexts(),
            std::vector<std::string>{"Unable to open a file in the product directory for writing.\r\nPath/File access error"});
  EXPECT_EQ(ReadWholeFile(dat), " keep  \r\n  \r\n");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), std::filesystem::directory_iterator()), 1);
  EXPECT_FALSE(fake.progress.Visible());
}

}  // namespace
}  // namespace benchlog

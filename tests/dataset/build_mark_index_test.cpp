#include <gtest/gtest.h>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset/dataset_test_support.hpp"
#include "session/index_record.hpp"
#include "fakes/fakes.hpp"

namespace benchlog {
namespace {

using testing::FakePlatform;
using testing::Fixture;
using testing::TempFolder;

struct Golden {
  const char* name;
  std::size_t descriptions;
  std::vector<const char*> pictures;  // files made beside the dataset before the build
};

class GoldenIndex : public ::testing::TestWithParam<Golden> {};

// The index file matches the hand-made one byte for byte, and the built array has the builder's
// layout: the records of all but the last Description, an empty element, the last record, the
// sentinel. Loading the file gives the other layout: the records, the sentinel, an empty element.
TEST_P(GoldenIndex, MatchesTheHandMadeIndex) {
  const Golden& g = GetParam();
  TempFolder folder;
  const std::string dat = CopyFixture(folder, std::string(g.name) + ".dat");
  for (const char* picture : g.pictures) folder.Write(picture, "");
  const std::string ndx = folder.File(std::string(g.name) + ".ndx");
  FakePlatform fake(folder.Path());
  MarkIndex index;

  ASSERT_TRUE(BuildMarkIndex(dat, ndx, index, fake.platform));
  EXPECT_TRUE(fake.ui.messages.empty());
  const std::string expected = Fixture(std::string(g.name) + ".ndx");
  EXPECT_EQ(ReadWholeFile(ndx), expected);

  const std::vector<std::string> lines = SplitCrLf(expected);  // records, sentinel, ""
  const std::size_t d = g.descriptions;
  ASSERT_EQ(lines.size(), d + 2);
  ASSERT_EQ(index.Size(), d + 2);
  for (std::size_t i = 0; i + 1 < d; ++i) EXPECT_EQ(index[i], lines[i]) << "element " << i;
  EXPECT_EQ(index[d - 1], "");
  EXPECT_EQ(index[d], lines[d - 1]);
  EXPECT_EQ(index[d + 1], lines[d]);

  MarkIndex loaded;
  LoadIndexFile(ndx, loaded);
  EXPECT_EQ(loaded.Elements(), lines);
}

INSTANTIATE_TEST_SUITE_P(
    Fixtures, GoldenIndex,
    ::testing::Values(Golden{"layouts", 4, {}}, Golden{"landmarks", 8, {}},
                      Golden{"pictures", 3, {"EF0001ph.jpg", "EF0001sk.jpg", "EF0002sk.jpg", "EF0003ph.jpg"}},
                      Golden{"empty", 1, {}}, Golden{"single", 1, {}}, Golden{"blanked", 2, {}}),
    [](const auto& info) { return std::string(info.param.name); });

std::string Built(const std::string& text, const char* picture = nullptr) {
  TempFolder folder;
  const std::string dat = folder.Write("x.dat", text);
  if (picture) folder.Write(picture, "");
  FakePlatform fake(folder.Path());
  MarkIndex index;
  BuildMarkIndex(dat, folder.File("x.ndx"), index, fake.platform);
  return ReadWholeFile(folder.File("x.ndx"));
}

// What stands before the first header belongs to no Description: the first record starts at 1
// even when a deleted Description's blanks lie there.
TEST(BuildMarkIndex, LeadingBlanksDoNotMoveTheFirstOffset) {
  const std::string text = std::string(98, ' ') + "\r\n1      \r\n QQ0001  PID         -  QQ0001\r\n";
  const auto records = SplitCrLf(Built(text));
  ASSERT_EQ(records.size(), 3u);
  EXPECT_EQ(RecordOffset(records[0]), 1u);
  EXPECT_EQ(IndexField(records[0], kPidColumn), "QQ0001");
  EXPECT_EQ(RecordOffset(records[1]), text.size());
}

// Lines with a PID but no header line make one Description that starts at offset 0.
TEST(BuildMarkIndex, NoHeaderLineGivesOneRecordAtOffsetZero) {
  const auto records = SplitCrLf(Built(" QQ0002  PID         -  QQ0002\r\n QQ0002  DESIGNATION -  LOOSE\r\n"));
  ASSERT_EQ(records.size(), 3u);
  EXPECT_EQ(IndexField(records[0], kPidColumn), "QQ0002");
  EXPECT_EQ(IndexField(records[0], kDesignationColumn), "LOOSE" + std::string(25, ' '));
  EXPECT_EQ(RecordOffset(records[0]), 0u);
}

// Every line counts as its length plus 2, whatever its real end: a file with bare CR ends gets
// offsets that run ahead of the bytes.
TEST(BuildMarkIndex, CountsEveryLineAsCrLfEnded) {
  const auto records = SplitCrLf(Built("1      \r QQ0003  PID         -  QQ0003\r1      \r QQ0004  PID         -  QQ0004\r"));
  ASSERT_EQ(records.size(), 4u);
  EXPECT_EQ(RecordOffset(records[1]), 1u + 9 + 32);
  EXPECT_EQ(RecordOffset(records[2]), 78u);  // the sentinel has the real length
}

TEST(BuildMarkIndex, AdvancesTheBarOncePerDescriptionUpToItsMaximum) {
  TempFolder folder;
  const std::string dat = CopyFixture(folder, "landmarks.dat");  // 8 Descriptions
  FakePlatform fake(folder.Path());
  fake.progress.max = 5;
  fake.progress.value = 1;
  fake.progress.Show();
  MarkIndex index;
  BuildMarkIndex(dat, folder.File("landmarks.ndx"), index, fake.platform);
  EXPECT_EQ(fake.progress.value, 5);  // 7 header lines finish a Description; the bar stops at 5
  EXPECT_FALSE(fake.progress.Visible());
  std::vector<int> values;
  for (const auto& p : fake.progressHistory) values.push_back(p.value);
  EXPECT_EQ(values, (std::vector<int>{1, 2, 3, 4, 5, 5}));  // show, 4 steps, hide
}

TEST(BuildMarkIndex, FailureIsShownAndTheOldIndexStays) {
  TempFolder folder;
  const std::string ndx = folder.Write("gone.ndx", "old index\r\n");
  FakePlatform fake(folder.Path());
  fake.progress.Show();
  MarkIndex index;
  index.Set(0, "kept?");
  EXPECT_FALSE(BuildMarkIndex(folder.File("gone.dat"), ndx, index, fake.platform));
  ASSERT_EQ(fake.ui.messages.size(), 1u);
  EXPECT_EQ(fake.ui.messages[0].text, "File not found");
  EXPECT_EQ(fake.ui.messages[0].title, "Create Mark Index");
  EXPECT_EQ(fake.ui.messages[0].icon, MsgIcon::Critical);
  EXPECT_FALSE(fake.progress.Visible());
  EXPECT_EQ(ReadWholeFile(ndx), "old index\r\n");
  EXPECT_TRUE(index.Empty());  // cleared before the scan began
}

// A dataset with the index's own name in the program's folder is never written over.
TEST(BuildMarkIndex, NeverWritesOverTheDataset) {
  TempFolder folder;
  const std::string dat = CopyFixture(folder, "single.dat");
  FakePlatform fake(folder.Path());
  MarkIndex index;
  EXPECT_FALSE(BuildMarkIndex(dat, dat, index, fake.platform));
  EXPECT_EQ(ReadWholeFile(dat), Fixture("single.dat"));
  EXPECT_EQ(fake.ui.MessageTexts(), std::vector<std::string>{"Path/File access error"});
}

TEST(BuildMarkIndex, AnUnwritableIndexIsReported) {
  TempFolder folder;
  const std::string dat = CopyFixture(folder, "single.dat");
  FakePlatform fake(folder.Path());
  MarkIndex index;
  EXPECT_FALSE(BuildMarkIndex(dat, folder.File("no/such/folder.ndx"), index, fake.platform));
  ASSERT_EQ(fake.ui.messages.size(), 1u);
  EXPECT_EQ(fake.ui.messages[0].text,
            "Path/File access error: could not write " + folder.File("no/such/folder.ndx") + " (No such file or directory)");
}

}  // namespace
}  // namespace benchlog

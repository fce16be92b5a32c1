#include <gtest/gtest.h>

#include "common/files.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset/compress_dataset.hpp"
#include "dataset/dataset_test_support.hpp"
#include "dataset/description_file.hpp"
#include "fakes/fakes.hpp"

namespace benchlog {
namespace {

// The dataset's cycle: build, blank some Descriptions, compress, build again. The Descriptions
// that stand come back byte for byte, and the file is exactly their text.
TEST(DatasetCycle, SurvivingDescriptionsAreUnchanged) {
  testing::TempFolder folder;
  testing::FakePlatform fake(folder.Path());
  const std::string dat = CopyFixture(folder, "landmarks.dat");
  const std::string ndx = folder.File("landmarks.ndx");
  const std::vector<std::string> pids = {"CD0001", "CD0002", "CD0003", "CD0004",
                                         "CD0005", "CD0006", "CD0007", "CD0008"};
  const std::vector<std::string> deleted = {"CD0002", "CD0005", "CD0008"};
  const std::string original = ReadWholeFile(dat);

  MarkIndex index;
  ASSERT_TRUE(BuildMarkIndex(dat, ndx, index, fake.platform));
  std::map<std::string, std::string> before;
  for (const auto& pid : pids) ASSERT_EQ(GetDescription(index, dat, pid, before[pid]), "") << pid;
  before["CD0008"] += "\n";  // the last one is read one byte short

  for (const auto& pid : deleted) ASSERT_EQ(BlankDescription(index, dat, pid), "") << pid;
  EXPECT_EQ(ReadWholeFile(dat).size(), original.size());
  ASSERT_EQ(CompressDataset(dat, fake.platform), "");
  ASSERT_TRUE(BuildMarkIndex(dat, ndx, index, fake.platform));

  std::string expectedFile;
  for (const auto& pid : pids) {
    std::string text;
    const bool gone = std::find(deleted.begin(), deleted.end(), pid) != deleted.end();
    EXPECT_EQ(GetDescription(index, dat, pid, text), gone ? "PID not found!" : "") << pid;
    if (gone) continue;
    expectedFile += before[pid];
    if (pid == "CD0007") text += "\n";  // now the last one
    EXPECT_EQ(text, before[pid]) << pid;
  }
  EXPECT_EQ(ReadWholeFile(dat), expectedFile);
}

}  // namespace
}  // namespace benchlog

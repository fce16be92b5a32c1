// The parser over every Description of the sample dataset in support/samples: each one is found,
// and the PIDs read agree with the index built from the same file.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/text.hpp"
#include "dataset/build_mark_index.hpp"
#include "fakes/test_paths.hpp"
#include "session/index_record.hpp"
#include "export/export_test_support.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"

namespace benchlog {
namespace {

TEST(SampleDataset, EveryDescriptionParsesAndMatchesTheIndex) {
  testing::TempFolder folder;
  const std::string text = ReadWholeFile(testing::SampleDataset());
  const std::string dat = folder.Write("sample.dat", text);
  testing::FakePlatform fake(folder.Path());
  MarkIndex built;
  ASSERT_TRUE(BuildMarkIndex(dat, folder.File("sample.ndx"), built, fake.platform));
  MarkIndex index;
  LoadIndexFile(folder.File("sample.ndx"), index);

  // As the export cuts the text: a line starting with "1" opens a Description whose first line
  // is the next one.
  const std::vector<std::string> lines = SplitCrLf(text);
  std::vector<std::size_t> starts;
  for (std::size_t i = 0; i + 1 < lines.size(); ++i)
    if (Left(lines[i], 1) == "1") starts.push_back(i + 1);
  ASSERT_GE(starts.size(), 40u);
  ASSERT_EQ(index.Size(), starts.size() + 2);  // the records, the sentinel, the empty last element

  std::size_t withPosition = 0;
  for (std::size_t n = 0; n < starts.size(); ++n) {
    const std::string pid = Mid(lines[starts[n]], 2, 6);
    const auto result = testing::Parse(pid, lines, starts[n]);
    EXPECT_EQ(result.ErrMsg, "") << pid;
    EXPECT_EQ(result.record.Pid.View(), pid);
    EXPECT_EQ(IndexField(index[n], kPidColumn), pid);
    EXPECT_EQ(result.record.RecordKind.View(), "R");
    if (!result.record.Latitude.IsBlank()) {
      ++withPosition;
      EXPECT_EQ(result.record.HorizDatum.View(), "83") << pid;
      EXPECT_EQ(result.record.Latitude.View().substr(0, 6), Mid(IndexField(index[n], kLatitudeColumn), 1, 2) +
                                                               Mid(IndexField(index[n], kLatitudeColumn), 4, 2) +
                                                               Mid(IndexField(index[n], kLatitudeColumn), 7, 2))
          << pid;
    }
  }
  EXPECT_GE(withPosition, starts.size() / 2);
}

}  // namespace
}  // namespace benchlog

#include <gtest/gtest.h>

#include "common/files.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset/dataset_test_support.hpp"
#include "dataset/description_file.hpp"
#include "session/index_record.hpp"

namespace benchlog {
namespace {

using testing::Fixture;
using testing::TempFolder;

// landmarks.dat: 8 Descriptions CD0001..CD0008 at these offsets, 3513 bytes in all.
constexpr std::size_t kOffsets[] = {1, 467, 889, 1318, 1799, 2214, 2634, 3091, 3514};

struct Landmarks {
  TempFolder folder;
  std::string dat = CopyFixture(folder, "landmarks.dat");
  std::string original = Fixture("landmarks.dat");
  MarkIndex index;
  Landmarks() { LoadIndexFile(CopyFixture(folder, "landmarks.ndx"), index); }
  std::string Span(int i, std::size_t shortBy = 0) const {
    return original.substr(kOffsets[i] - 1, kOffsets[i + 1] - kOffsets[i] - shortBy);
  }
};

TEST(GetDescription, ReadsTheSpanBetweenTwoOffsets) {
  Landmarks data;
  struct Case {
    const char* pid;
    int description;
    std::size_t shortBy;
  };
  // The last Description ends at the dataset's length, one byte short of its final LF.
  const Case cases[] = {{"CD0001", 0, 0}, {"CD0004", 3, 0}, {"CD0007", 6, 0}, {"CD0008", 7, 1}};
  for (const auto& c : cases) {
    std::string text;
    EXPECT_EQ(GetDescription(data.index, data.dat, c.pid, text), "") << c.pid;
    EXPECT_EQ(text, data.Span(c.description, c.shortBy)) << c.pid;
  }
  std::string text;
  GetDescription(data.index, data.dat, "CD0008", text);
  EXPECT_EQ(text.substr(text.size() - 2), "E\r");
}

TEST(GetDescription, FailuresAndSilentCases) {
  Landmarks data;
  std::string text = "as passed";
  EXPECT_EQ(GetDescription(data.index, data.dat, "ZZ9999", text), "PID not found!");
  EXPECT_EQ(GetDescription(data.index, data.folder.File("missing.dat"), "CD0002", text), "");
  EXPECT_EQ(text, "as passed");

  // The empty dataset's only record has offset 0: nothing is read.
  MarkIndex empty;
  LoadIndexFile(CopyFixture(data.folder, "empty.ndx"), empty);
  EXPECT_EQ(GetDescription(empty, CopyFixture(data.folder, "empty.dat"), "", text), "");
  EXPECT_EQ(text, "as passed");

  // A record cut short makes the look-up read a later offset than the next one.
  MarkIndex layouts;
  LoadIndexFile(CopyFixture(data.folder, "layouts.ndx"), layouts);
  EXPECT_EQ(GetDescription(layouts, CopyFixture(data.folder, "layouts.dat"), "AB1236", text),
            "Invalid description Length!");
  EXPECT_EQ(text, "as passed");
}

TEST(BlankDescription, OverwritesTheSpanAndKeepsTheLength) {
  struct Case {
    const char* pid;
    int description;
    std::size_t span;  // bytes written: blanks and CR LF
  };
  const Case cases[] = {
      {"CD0004", 3, 481},
      {"CD0001", 0, 466},
      {"", 0, 466},        // an empty PID is found at the start: the first Description goes
      {"CD0008", 7, 422},  // the last: one byte short, so its final LF stays behind the CR LF
  };
  for (const auto& c : cases) {
    Landmarks data;
    EXPECT_EQ(BlankDescription(data.index, data.dat, c.pid), "") << c.pid;
    std::string expected = data.original;
    expected.replace(kOffsets[c.description] - 1, c.span, std::string(c.span - 2, ' ') + "\r\n");
    EXPECT_EQ(ReadWholeFile(data.dat), expected) << c.pid;
  }
  Landmarks data;
  BlankDescription(data.index, data.dat, "CD0008");
  const std::string after = ReadWholeFile(data.dat);
  EXPECT_EQ(after.substr(after.size() - 5), "  \r\n\n");
}

std::string Rec(const char* pid, std::uint64_t offset) {
  IndexRecord r;
  r.Pid = pid;
  r.DescriptionOffset = offset;
  return FormatIndexRecord(r);
}

TEST(BlankDescription, ShortSpansAndAZeroOffset) {
  struct Case {
    std::uint64_t start, next;
    const char* expected;
  };
  const Case cases[] = {
      {10, 12, "abcdefghijklmnopqrst"},      // 2 bytes: left alone
      {10, 11, "abcdefghijklmnopqrst"},      // 1 byte
      {10, 13, "abcdefghi \r\nmnopqrst"},    // 3 bytes: one blank and CR LF
      {0, 5, "  \r\nefghijklmnopqrst"},      // offset 0 counts as 1
  };
  for (const auto& c : cases) {
    TempFolder folder;
    const std::string dat = folder.Write("t.dat", "abcdefghijklmnopqrst");
    MarkIndex index;
    index.Assign({Rec("PP0001", c.start), Rec("PP0002", c.next), SentinelRecord(20), ""});
    EXPECT_EQ(BlankDescription(index, dat, "PP0001"), "");
    EXPECT_EQ(ReadWholeFile(dat), c.expected) << c.start << ".." << c.next;
  }
}

TEST(BlankDescription, Failures) {
  Landmarks data;
  EXPECT_EQ(BlankDescription(data.index, data.dat, "ZZ9999"), "PID not found!");
  EXPECT_EQ(BlankDescription(data.index, data.folder.File("missing.dat"), "CD0002"),
            "Unable to open .dat file for writing.");
  EXPECT_FALSE(FileExists(data.folder.File("missing.dat")));
  EXPECT_EQ(ReadWholeFile(data.dat), data.original);
}

}  // namespace
}  // namespace benchlog

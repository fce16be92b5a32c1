// Cutting the export's text into Descriptions, and parsing them on a second thread.
#include <gtest/gtest.h>

#include <chrono>
#include <cstring>
#include <memory>
#include <random>
#include <thread>
#include <tuple>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/runtime_failure.hpp"
#include "common/test_support.hpp"
#include "common/text.hpp"
#include "dataset/find_descriptions.hpp"
#include "export/export_test_support.hpp"
#include "export/parsed_marks.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_paths.hpp"

namespace benchlog::testing {
namespace {

// What the export makes of a text, Description by Description: the PID and the parser's lines.
struct Found {
  std::string pid;
  std::vector<std::string> lines;
  bool operator==(const Found&) const = default;
  friend void PrintTo(const Found& found, std::ostream* out) {
    *out << found.pid << ": " << ::testing::PrintToString(found.lines);
  }
};
using Walk = std::vector<Found>;
constexpr const char* kFails = "Subscript out of range";

Walk Collect(TextBlocks& text, std::string& failure) {
  Walk walk;
  DescriptionStream stream(text);
  std::vector<std::string_view> lines;
  try {
    while (stream.Next()) {
      stream.Lines(lines);
      walk.push_back({std::string(stream.Pid()), {lines.begin(), lines.end()}});
    }
  } catch (const RuntimeFailure& error) {
    if (error.number == kSubscriptOutOfRange) failure = kFails;
  }
  return walk;
}

// The same, worked out line by line from the text split at CR LF, as the export is meant to cut it.
Walk Expected(const std::string& text, std::string& failure) {
  const std::vector<std::string> all = SplitCrLf(text);
  Walk walk;
  for (std::size_t j = 0; j < all.size(); ++j) {
    if (all[j].empty() || all[j][0] != '1') continue;
    if (j + 1 == all.size()) {
      failure = kFails;
      break;
    }
    Found found{Mid(all[j + 1], 2, 6), {}};
    for (std::size_t k = j + 1; k < all.size(); ++k) {
      found.lines.push_back(all[k]);
      if (Mid(all[k], 2, 6) != found.pid) break;
    }
    walk.push_back(found);
  }
  return walk;
}

// The texts of tests/data/export/stream_texts.txt, then 400 texts made of its pieces at random,
// with and without a final CR LF.
std::vector<std::string> SampleTexts() {
  std::vector<std::string> pieces, texts;
  for (const auto& row : ReadRows("export/stream_texts.txt", 17, '|')) (row[0] == "piece" ? pieces : texts).push_back(row[1]);
  std::mt19937 random(20261122);
  for (int n = 0; n < 400; ++n) {
    std::string text;
    const auto lines = random() % 12;
    for (unsigned k = 0; k < lines; ++k) {
      text += pieces[random() % pieces.size()];
      if (k + 1 < lines || random() % 2) text += "\r\n";
    }
    texts.push_back(text);
  }
  return texts;
}

TEST(DescriptionStream, FindsWhatTheLinesOfTheTextHold) {
  TempFolder folder;
  for (const std::string& text : SampleTexts()) {
    std::string expectedFailure;
    const Walk expected = Expected(text, expectedFailure);
    const std::string path = folder.Write("text.dat", text);
    for (const std::size_t block : {1, 2, 3, 5, 8, 13, 4096}) {
      TextBlocks blocks(TextFile{path, block});
      std::string failure;
      EXPECT_EQ(Collect(blocks, failure), expected) << ::testing::PrintToString(text) << " in blocks of " << block;
      EXPECT_EQ(failure, expectedFailure) << ::testing::PrintToString(text);
    }
    TextBlocks whole(text);
    std::string failure;
    EXPECT_EQ(Collect(whole, failure), expected) << ::testing::PrintToString(text);
    EXPECT_EQ(failure, expectedFailure);
  }
}

// Counting reads the text to its end; read again from the start, it gives the same. The text's
// last two lines are empty, so the Description opened by "12" takes both.
TEST(DescriptionStream, CountsAndReadsAgainFromTheStart) {
  TempFolder folder;
  const std::string path =
      folder.Write("text.dat", "1      h\r\n AB1234 x\r\n AB1234 y\r\n1\r\n CD5678\r\n12\r\n\r\n");
  TextBlocks blocks(TextFile{path, 4});
  EXPECT_EQ(CountDescriptions(blocks), 3u);
  blocks.Rewind();
  std::string failure;
  const Walk walk = Collect(blocks, failure);
  EXPECT_EQ(walk, (Walk{{"AB1234", {" AB1234 x", " AB1234 y", "1"}}, {"CD5678", {" CD5678", "12"}}, {"", {"", ""}}}));
  TextBlocks missing("1      header");
  EXPECT_THROW(CountDescriptions(missing), RuntimeFailure);
  EXPECT_THROW(TextBlocks(TextFile{folder.File("none.dat")}), RuntimeFailure);
}

// Parsed marks come out in the text's order, each as the parser alone makes it, whichever thread
// parsed it; failures come out at their mark.
struct ParsedAlone {
  std::string pid;
  std::unique_ptr<MarkRecord> record;
};

// The sample dataset (45 marks) `copies` times over.
std::string Samples(int copies) {
  const std::string sample = ReadWholeFile(SampleDataset());
  std::string text;
  while (copies-- > 0) text += sample;
  return text;
}

// The same text read and parsed one Description after another on this thread; every
// Description of the sample parses without an error.
std::vector<ParsedAlone> ParsedOneByOne(const std::string& text) {
  TextBlocks blocks(text);
  DescriptionStream descriptions(blocks);
  std::vector<std::string_view> lines;
  std::vector<ParsedAlone> marks;
  while (descriptions.Next()) {
    descriptions.Lines(lines);
    auto record = std::make_unique<MarkRecord>();
    ClearMarkRecord(*record);
    std::string error;
    ParseDescription(descriptions.Pid(), lines, 0, ParseGroups{}, error, *record, SourceSupportFiles());
    EXPECT_EQ(error, "") << descriptions.Pid();
    marks.push_back({std::string(descriptions.Pid()), std::move(record)});
  }
  return marks;
}

// Every record is compared whole: its fields are all characters. The sample's 45 marks are parsed
// on this thread alone; the longer text's, past the first ones, on a second thread.
TEST(ParsedMarks, AreTheParsersRecordsInTheTextsOrder) {
  // Taking the marks at once keeps the queue empty; pausing with a mark in hand lets it fill.
  for (const auto& [text, pausing] : {std::pair{Samples(8), false}, {Samples(8), true}, {Samples(1), false}}) {
    const std::vector<ParsedAlone> expected = ParsedOneByOne(text);
    ASSERT_GT(expected.size(), 40u);
    TextBlocks blocks(text);
    ParsedMarks marks(blocks, SourceSupportFiles());
    std::size_t n = 0;
    for (ParsedMark* mark = marks.Next(); mark; mark = marks.Next(), ++n) {
      ASSERT_LT(n, expected.size());
      if (pausing && n % 7 == 0) std::this_thread::sleep_for(std::chrono::microseconds(200));
      EXPECT_EQ(mark->pid, expected[n].pid);
      EXPECT_EQ(std::memcmp(&mark->record, expected[n].record.get(), sizeof(MarkRecord)), 0) << expected[n].pid;
      mark->record.Designation = "CHANGED BY THE EXPORT";  // a record handed out is the caller's
    }
    EXPECT_EQ(n, expected.size()) << pausing;
    EXPECT_EQ(marks.Next(), nullptr);
    EXPECT_EQ(marks.Threaded(), n > 45);
  }
}

// A "1" line as the last line fails after all the marks before it, on either thread; a support
// file that cannot be found, at the first mark. A second call fails alike.
TEST(ParsedMarks, HandOnAFailureAtItsMark) {
  for (const auto& [text, supportPath, good, failure] :
       {std::tuple{Samples(1) + "1", SourceSupport(), 45, kSubscriptOutOfRange},
        {Samples(8) + "1", SourceSupport(), 8 * 45, kSubscriptOutOfRange},
        {Samples(1), std::string("/nonexistent/"), 0, kFileNotFound}}) {
    TextBlocks blocks(text);
    SupportFiles support;
    support.Refresh(supportPath, {});
    ParsedMarks marks(blocks, support);
    for (int n = 0; n < good; ++n) ASSERT_NE(marks.Next(), nullptr) << n;
    for (int call = 0; call < 2; ++call) EXPECT_EQ(FailureOf([&marks] { marks.Next(); }), failure) << good;
  }
}

// Left just after it started, or with the queue full, the second thread stops at once rather than
// reading the text to its end.
TEST(ParsedMarks, StopWhenLeftEarly) {
  const std::string text = Samples(8);
  for (const int pause : {0, 20}) {
    TextBlocks blocks(text);
    ParsedMarks marks(blocks, SourceSupportFiles());
    for (std::size_t n = 0; n <= ParsedMarks::kOnThisThread; ++n) ASSERT_NE(marks.Next(), nullptr);
    std::this_thread::sleep_for(std::chrono::milliseconds(pause));
    EXPECT_TRUE(marks.Threaded());
  }
}

}  // namespace
}  // namespace benchlog::testing

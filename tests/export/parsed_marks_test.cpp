// Parsed marks come out in the text's order, each as the parser alone makes it, whichever thread
// parsed it; failures come out at their mark.
#include <gtest/gtest.h>

#include <chrono>
#include <cstring>
#include <memory>
#include <string>
#include <thread>
#include <tuple>
#include <utility>
#include <vector>

#include "common/files.hpp"
#include "common/runtime_failure.hpp"
#include "export/export_test_support.hpp"
#include "dataset/find_descriptions.hpp"
#include "export/parsed_marks.hpp"
#include "fakes/test_paths.hpp"

namespace benchlog::testing {
namespace {

struct Expected {
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
std::vector<Expected> ParsedOneByOne(const std::string& text) {
  TextBlocks blocks(text);
  DescriptionStream descriptions(blocks);
  std::vector<std::string_view> lines;
  std::vector<Expected> marks;
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
    const std::vector<Expected> expected = ParsedOneByOne(text);
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
    for (int call = 0; call < 2; ++call) {
      try {
        marks.Next();
        ADD_FAILURE() << "no failure after " << good;
      } catch (const RuntimeFailure& thrown) {
        EXPECT_EQ(thrown.number, failure);
      }
    }
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

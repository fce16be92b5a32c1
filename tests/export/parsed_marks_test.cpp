// Parsing on a second thread: the marks come out in the text's order, each as the parser alone
// makes it, whoever of the two threads parsed it; failures come out at their mark.
#include <gtest/gtest.h>

#include <chrono>
#include <cstring>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "common/files.hpp"
#include "common/runtime_failure.hpp"
#include "export/export_test_support.hpp"
#include "dataset/find_descriptions.hpp"
#include "export/parsed_marks.hpp"

namespace benchlog::testing {
namespace {

struct Expected {
  std::string pid;
  std::unique_ptr<MarkRecord> record;
};

// The sample dataset eight times over: far more marks than are parsed ahead.
std::string ManyDescriptions() {
  const std::string sample = ReadWholeFile(std::string(BENCHLOG_SOURCE_DIR) + "/support/samples/sample.dat");
  std::string text;
  for (int copy = 0; copy < 8; ++copy) text += sample;
  return text;
}

// The same text read and parsed one Description after another on this thread.
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
    marks.push_back({std::string(descriptions.Pid()), std::move(record)});
  }
  return marks;
}

// Every record is compared whole: its fields are all characters.
TEST(ParsedMarks, AreTheParsersRecordsInTheTextsOrder) {
  const std::string text = ManyDescriptions();
  const std::vector<Expected> expected = ParsedOneByOne(text);
  ASSERT_GT(expected.size(), 300u);
  // Taking the marks at once leaves most of the parsing to this thread; pausing now and then lets
  // the other thread parse ahead.
  for (const bool pausing : {false, true}) {
    TextBlocks blocks(text);
    ParsedMarks marks(blocks, SourceSupportFiles());
    std::size_t n = 0;
    for (ParsedMark* mark = marks.Next(); mark; mark = marks.Next(), ++n) {
      ASSERT_LT(n, expected.size());
      EXPECT_EQ(mark->pid, expected[n].pid);
      EXPECT_EQ(std::memcmp(&mark->record, expected[n].record.get(), sizeof(MarkRecord)), 0) << expected[n].pid;
      mark->record.Designation = "CHANGED BY THE EXPORT";  // a record handed out is the caller's
      if (pausing && n % 7 == 0) std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
    EXPECT_EQ(n, expected.size()) << pausing;
    EXPECT_EQ(marks.Next(), nullptr);
  }
}

TEST(ParsedMarks, HandOnAFailureAtItsMark) {
  // A "1" line as the last line: the marks before it, then the failure.
  const std::string text = "1\r\n AB1234  DESIGNATION-  ONE\r\n1\r\n CD5678  DESIGNATION-  TWO\r\n1";
  TextBlocks blocks(text);
  ParsedMarks marks(blocks, SourceSupportFiles());
  EXPECT_EQ(marks.Next()->pid, "AB1234");
  EXPECT_EQ(marks.Next()->pid, "CD5678");
  try {
    marks.Next();
    FAIL() << "no failure";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.number, kSubscriptOutOfRange);
  }

  // A support file the parser needs and cannot find.
  const std::string sample = ReadWholeFile(std::string(BENCHLOG_SOURCE_DIR) + "/support/samples/sample.dat");
  TextBlocks noSupport(sample);
  SupportFiles nowhere;
  nowhere.Refresh("/nonexistent/", {});
  ParsedMarks unsupported(noSupport, nowhere);
  try {
    unsupported.Next();
    FAIL() << "no failure";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.number, kFileNotFound);
  }
}

// Left after a few marks, the parsing stops at once rather than reading the text to its end.
TEST(ParsedMarks, StopWhenLeftEarly) {
  const std::string text = ManyDescriptions();
  for (const int taken : {0, 1, 20}) {
    TextBlocks blocks(text);
    ParsedMarks marks(blocks, SourceSupportFiles());
    for (int n = 0; n < taken; ++n) ASSERT_NE(marks.Next(), nullptr);
  }
}

}  // namespace
}  // namespace benchlog::testing

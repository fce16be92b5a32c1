// Cutting the export's text into Descriptions, and the names of the outputs.
#include <gtest/gtest.h>

#include "common/runtime_failure.hpp"
#include "export/export_names.hpp"
#include "export/find_descriptions.hpp"

namespace benchlog::testing {
namespace {

TEST(FindDescriptions, EveryLineStartingWithOneOpensADescription) {
  const std::string text =
      "1      first header\r\n AB1234  DESIGNATION\r\n AB1234  PID\r\n12 also a header\r\n CD5678 x\r\n"
      "1\r\n\r\n";
  const std::vector<std::string_view> lines = SplitCrLfViews(text);
  std::vector<std::size_t> starts{99};
  std::vector<std::string> pids{"KEPT"};
  std::size_t count = 1;
  FindDescriptions(lines, starts, pids, count);
  EXPECT_EQ(count, 4u);
  EXPECT_EQ(starts, (std::vector<std::size_t>{99, 1, 4, 6}));
  // The PID is columns 2 to 7 of the next line, whatever it holds.
  EXPECT_EQ(pids, (std::vector<std::string>{"KEPT", "AB1234", "CD5678", ""}));
}

TEST(FindDescriptions, TextWithoutHeadersHasNone) {
  const std::vector<std::string_view> lines = SplitCrLfViews(" AB1234  DESIGNATION\r\n\r\n");
  std::vector<std::size_t> starts;
  std::vector<std::string> pids;
  std::size_t count = 0;
  FindDescriptions(lines, starts, pids, count);
  EXPECT_EQ(count, 0u);
  EXPECT_TRUE(starts.empty() && pids.empty());
}

TEST(FindDescriptions, AHeaderAsTheVeryLastLineFailsOnTheBound) {
  const std::vector<std::string_view> lines = SplitCrLfViews("1      header\r\n AB1234 x\r\n1      last");
  std::vector<std::size_t> starts;
  std::vector<std::string> pids;
  std::size_t count = 0;
  try {
    FindDescriptions(lines, starts, pids, count);
    FAIL();
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.number, kSubscriptOutOfRange);
  }
}

TEST(SplitCrLfViews, KeepsLoneLineFeedsAndTheEmptyEnd) {
  struct Case {
    std::string text;
    std::vector<std::string_view> lines;
  };
  for (const Case& c : {Case{"", {""}}, Case{"a\r\nb\r\n", {"a", "b", ""}}, Case{"a\nb\r\r\nc", {"a\nb\r", "c"}}})
    EXPECT_EQ(SplitCrLfViews(c.text), c.lines) << c.text;
}

TEST(ExportNames, FromTheChosenNameWithoutItsExtension) {
  struct Case {
    const char* chosen;
    const char* stem;
  };
  for (const Case c : {Case{"/out/marks", "/out/marks"}, Case{"/out/marks.txt", "/out/marks"},
                       Case{"/out/marks.2024.txt", "/out/marks.2024"}, Case{"/out/v1.2/marks", "/out/v1.2/marks"},
                       Case{"marks.", "marks"}}) {
    const ExportNames names = ExportNamesOf(c.chosen);
    const std::string stem = c.stem;
    EXPECT_EQ(names.stem, stem);
    EXPECT_EQ(names.hcl, stem + ".hcl");
    EXPECT_EQ(names.vcl, stem + ".vcl");
    EXPECT_EQ(names.mdb, stem + ".mdb");
    EXPECT_EQ(names.sa6, stem + "_sa6.txt");
    EXPECT_EQ(names.msf, stem + ".msf");
    EXPECT_EQ(names.err, stem + ".err");
    EXPECT_EQ(names.gwp, stem + "_gwp.txt");
    EXPECT_EQ(names.des, stem + ".des");
  }
}

}  // namespace
}  // namespace benchlog::testing

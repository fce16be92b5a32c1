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
  std::vector<std::size_t> starts{99};
  std::vector<std::string> pids{"KEPT"};
  std::size_t count = 1;
  FindDescriptions(text, starts, pids, count);
  EXPECT_EQ(count, 4u);
  // Byte offsets of the lines after the headers: " AB1234  DESIGNATION", " CD5678 x", "".
  EXPECT_EQ(starts, (std::vector<std::size_t>{99, 21, 75, 89}));
  // The PID is columns 2 to 7 of the next line, whatever it holds.
  EXPECT_EQ(pids, (std::vector<std::string>{"KEPT", "AB1234", "CD5678", ""}));
}

TEST(FindDescriptions, TextWithoutHeadersHasNone) {
  std::vector<std::size_t> starts;
  std::vector<std::string> pids;
  std::size_t count = 0;
  FindDescriptions(" AB1234  DESIGNATION\r\n\r\n", starts, pids, count);
  EXPECT_EQ(count, 0u);
  EXPECT_TRUE(starts.empty() && pids.empty());
}

TEST(FindDescriptions, AHeaderAsTheVeryLastLineFailsOnTheBound) {
  std::vector<std::size_t> starts;
  std::vector<std::string> pids;
  std::size_t count = 0;
  try {
    FindDescriptions("1      header\r\n AB1234 x\r\n1      last", starts, pids, count);
    FAIL();
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.number, kSubscriptOutOfRange);
  }
}

// Lines end only at CR LF: a lone CR or LF stays inside its line, and a final CR LF leaves an
// empty last line.
TEST(FindDescriptions, LinesEndAtCrLf) {
  const std::string text = "a\nb\r\r\nc\r\n";
  std::vector<std::string_view> lines;
  std::size_t offset = 0;
  while (offset != std::string_view::npos) lines.push_back(LineAt(text, offset, offset));
  EXPECT_EQ(lines, (std::vector<std::string_view>{"a\nb\r", "c", ""}));
  std::size_t next = 0;
  EXPECT_EQ(LineAt("", 0, next), "");
  EXPECT_EQ(next, std::string_view::npos);
}

// The parser reads a Description's run of lines of its PID and the one line after it.
TEST(FindDescriptions, DescriptionLinesAreTheRunOfItsPid) {
  const std::string text =
      "1      h\r\n AB1234 one\r\n AB1234 two\r\n CD5678 other\r\n AB1234 later\r\n1      h\r\n AB1234";
  std::vector<std::string_view> lines{"stale"};
  DescriptionLines(text, 10, "AB1234", lines);
  EXPECT_EQ(lines, (std::vector<std::string_view>{" AB1234 one", " AB1234 two", " CD5678 other"}));
  DescriptionLines(text, text.size() - 7, "AB1234", lines);
  EXPECT_EQ(lines, (std::vector<std::string_view>{" AB1234"}));
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

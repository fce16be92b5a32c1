#include <gtest/gtest.h>

#include <vector>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "fakes/temp_folder.hpp"
#include "test_support.hpp"

namespace benchlog {
namespace {

using testing::TempFolder;

using namespace std::string_literals;
using Lines = std::vector<std::string>;
constexpr std::size_t kBuffer = LineReader::kBufferSize;

Lines ReadAll(const std::string& path) {
  LineReader reader(path);
  Lines lines;
  std::string_view line;
  while (reader.ReadLine(line)) lines.emplace_back(line);
  return lines;
}

TEST(LineReader, EndsLinesAtCrOrCrLfAndKeepsEveryOtherByte) {
  struct Case { const char* name; std::string content; Lines expected; };
  const std::string x(kBuffer - 1, 'x');
  const std::string z(kBuffer + 10, 'z');
  const Case cases[] = {
      {"empty file", "", {}},
      {"only CR LF", "\r\n", {""}},
      {"last line without end", "a\r\nb", {"a", "b"}},
      {"lone CR", "a\rb\r", {"a", "b"}},
      {"lone LF stays", "a\nb\r\nc\n", {"a\nb", "c\n"}},
      {"CR then CR LF", "a\r\r\nb", {"a", "", "b"}},
      {"empty line at the end", "a\r\n\r\n", {"a", ""}},
      {"bytes above 127 and NUL", "\xE9\0z\xFF\r\n"s, {"\xE9\0z\xFF"s}},
      {"CR last in the buffer, LF in the next read", x + "\r\ny", {x, "y"}},
      {"CR last in the buffer, then a line", x + "\rab\r\n", {x, "ab"}},
      {"CR last byte of the file", x + "\r", {x}},
      {"line across the buffer", "a\r\n" + z + "\r\nb", {"a", z, "b"}},
  };
  TempFolder folder;
  const std::string path = folder.File("lines.dat");
  for (const auto& c : cases) {
    WriteWholeFile(path, c.content);
    EXPECT_EQ(ReadAll(path), c.expected) << c.name;
  }
}

TEST(LineReader, ReadsIntoAStringAndFailsOnAMissingFile) {
  TempFolder folder;
  WriteWholeFile(folder.File("a.dat"), "one\r\ntwo");
  LineReader reader(folder.File("a.dat"));
  std::string line;
  ASSERT_TRUE(reader.ReadLine(line));
  EXPECT_EQ(line, "one");
  ASSERT_TRUE(reader.ReadLine(line));
  EXPECT_EQ(line, "two");
  EXPECT_FALSE(reader.ReadLine(line));
  EXPECT_FALSE(reader.ReadLine(line));
  EXPECT_EQ(FailureOf([&] { LineReader missing(folder.File("missing.dat")); }), kFileNotFound);
}

TEST(SplitCrLf, SplitsAtCrLfOnly) {
  EXPECT_EQ(SplitCrLf("a\r\nb\r\n"), (Lines{"a", "b", ""}));
  EXPECT_EQ(SplitCrLf(""), (Lines{""}));
  EXPECT_EQ(SplitCrLf("a\rb\nc"), (Lines{"a\rb\nc"}));
  EXPECT_EQ(SplitCrLf("\r\n\r\n"), (Lines{"", "", ""}));
}

}  // namespace
}  // namespace benchlog

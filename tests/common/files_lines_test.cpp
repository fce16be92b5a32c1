#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/text.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_rows.hpp"
#include "test_support.hpp"

namespace benchlog {
namespace {

using testing::TempFolder;
namespace fs = std::filesystem;
using namespace std::string_literals;
using Lines = std::vector<std::string>;

TEST(Files, WriteAppendAndReadAreByteExact) {
  TempFolder folder;
  const std::string path = folder.File("a.dat");
  WriteWholeFile(path, "A\0\xE9\r\n"s);
  AppendToFile(path, "B\n");
  EXPECT_EQ(ReadWholeFile(path), "A\0\xE9\r\nB\n"s);
  EXPECT_EQ(FileLength(path), 7u);
  WriteWholeFile(path, "");
  EXPECT_EQ(FileLength(path), 0u);
  EXPECT_TRUE(FileExists(path));
  EXPECT_FALSE(FileExists(folder.File("")));  // the folder itself is no file
}

TEST(Files, AMissingFileIsFileNotFound) {
  TempFolder folder;
  const std::string missing = folder.File("missing.dat");
  EXPECT_EQ(FailureOf([&] { FileLength(missing); }), kFileNotFound);
  EXPECT_EQ(FailureOf([&] { ReadWholeFile(missing); }), kFileNotFound);
  EXPECT_EQ(FailureOf([&] { ReadWholeFile(folder.File("")); }), kFileNotFound);
  EXPECT_FALSE(FileExists(missing));
  EXPECT_NO_THROW(DeleteFileIfExists(missing));
}

TEST(Files, IsReadOnlyWhenTheFileCannotBeWritten) {
  TempFolder folder;
  const std::string path = folder.File("a.dat");
  EXPECT_FALSE(IsReadOnly(path));  // missing
  WriteWholeFile(path, "x");
  EXPECT_FALSE(IsReadOnly(path));
  fs::permissions(path, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  EXPECT_TRUE(IsReadOnly(path));  // also for a user who could write it anyway
  fs::permissions(path, fs::perms::owner_write, fs::perm_options::add);
  EXPECT_FALSE(IsReadOnly(path));
}

constexpr std::size_t kBuffer = LineReader::kBufferSize;

Lines ReadAll(const std::string& path) {
  LineReader reader(path);
  Lines lines;
  std::string_view line;
  while (reader.ReadLine(line)) lines.emplace_back(line);
  return lines;
}

TEST(LineReader, EndsLinesAtCrOrCrLfAndKeepsEveryOtherByte) {
  TempFolder folder;
  const std::string path = folder.File("lines.dat");
  for (auto c : testing::ReadRows("common/line_reader_cases.txt", 12, '|')) {
    for (auto& field : c)
      field = ReplaceAll(ReplaceAll(field, "{x}", std::string(kBuffer - 1, 'x')), "{z}", std::string(kBuffer + 10, 'z'));
    WriteWholeFile(path, c[1]);
    EXPECT_EQ(ReadAll(path), Lines(c.begin() + 2, c.end())) << c[0];
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

}  // namespace
}  // namespace benchlog

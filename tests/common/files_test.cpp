#include <gtest/gtest.h>

#include <filesystem>

#include "common/files.hpp"
#include "fakes/temp_folder.hpp"
#include "test_support.hpp"

namespace benchlog {
namespace {

using testing::TempFolder;

namespace fs = std::filesystem;
using namespace std::string_literals;

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

}  // namespace
}  // namespace benchlog

#include <gtest/gtest.h>

#include "common/paths.hpp"

namespace benchlog {
namespace {

TEST(Paths, SplitAtTheLastSeparatorOfEitherKind) {
  struct Case { const char* path; const char* folder; const char* withoutExtension; const char* base; const char* name; };
  const Case cases[] = {
      {"/data/sets/ohio.dat", "/data/sets/", "/data/sets/ohio", "ohio", "ohio.dat"},
      {"C:\\data\\ohio.dat", "C:\\data\\", "C:\\data\\ohio", "ohio", "ohio.dat"},
      {"/data\\sub/o.h.dat", "/data\\sub/", "/data\\sub/o.h", "o.h", "o.h.dat"},
      {"ohio.dat", "", "ohio", "", "ohio.dat"},             // no separator: no base name
      {"/data/ohio", "/data/", "/data/ohio", "", "ohio"},   // no "."
      {"/da.ta/ohio", "/da.ta/", "/da.ta/ohio", "", "ohio"},  // the "." is in the folder
      {"/data/", "/data/", "/data/", "", ""},
      {"", "", "", "", ""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(FolderOf(c.path), c.folder) << c.path;
    EXPECT_EQ(WithoutExtension(c.path), c.withoutExtension) << c.path;
    EXPECT_EQ(BaseName(c.path), c.base) << c.path;
    EXPECT_EQ(FileNameOf(c.path), c.name) << c.path;
  }
}

TEST(Paths, JoinPutsOneSeparatorBetween) {
  EXPECT_EQ(JoinPath("/data", "a.dat"), "/data/a.dat");
  EXPECT_EQ(JoinPath("/data/", "a.dat"), "/data/a.dat");
  EXPECT_EQ(JoinPath("C:\\d\\", "a.dat"), "C:\\d\\a.dat");
  EXPECT_EQ(JoinPath("", "a.dat"), "a.dat");
}

}  // namespace
}  // namespace benchlog

#include <gtest/gtest.h>

#include "common/runtime_failure.hpp"
#include "fakes/temp_folder.hpp"
#include "geodesy/zone_line.hpp"
#include "support_files/zone_table_file.hpp"
#include "geodesy_test_support.hpp"

namespace benchlog {
namespace {

using testing::SupportPath;
using testing::TempFolder;

class ZoneLookup : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_.Write(kZoneTableFile,
                  "AAAAA 0001 first\r\nBBBBB 0002 second\r\nCCCCC 0003 third\r\nBBBBB 0004 fourth\r\n");
  }
  std::string Find(const std::string& key, const std::string& number) {
    std::string line = "stale";
    FindZoneLine(key, number, line, folder_.Path() + "/");
    return line;
  }
  TempFolder folder_;
};

TEST_F(ZoneLookup, FirstLineWhoseKeyOrNumberMatches) {
  EXPECT_EQ(Find("CCCCC", ""), "CCCCC 0003 third");
  EXPECT_EQ(Find("BBBBB", ""), "BBBBB 0002 second");   // the first of two
  EXPECT_EQ(Find("ZZZZZ", "0003"), "CCCCC 0003 third"); // the number alone finds it
  EXPECT_EQ(Find("CCCCC", "0001"), "AAAAA 0001 first"); // or, not and: the earlier line wins
  EXPECT_EQ(Find("ZZZZZ", ""), "");                     // no match: empty
  EXPECT_EQ(Find("CCCC", ""), "");                      // the texts must fill the columns
  EXPECT_EQ(Find("", ""), "");
}

TEST_F(ZoneLookup, MissingTableIsTheFileError) {
  std::string line;
  try {
    FindZoneLine("AAAAA", "", line, folder_.Path() + "/absent/");
    FAIL() << "no failure";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.number, kFileNotFound);
  }
}

// The unit of each zone's feet, as its state defines them: grid feet come from it.
TEST(ZoneTable, FootUnits) {
  EXPECT_DOUBLE_EQ(GridFeetPerMetre("iFT"), 1 / 0.3048);
  EXPECT_EQ(GridFeetPerMetre("sFT"), 3937.0 / 1200.0);
  EXPECT_EQ(GridFeetPerMetre("   "), 3937.0 / 1200.0);
  struct Case { const char *key, *unit; };
  for (const Case c : {Case{"MD   ", "sFT"}, Case{"MI N ", "iFT"}, Case{"AK 10", "   "}}) {
    std::string line;
    FindZoneLine(c.key, "", line, SupportPath());
    EXPECT_EQ(ZoneFootUnit(line), c.unit) << c.key;
  }
}

}  // namespace
}  // namespace benchlog

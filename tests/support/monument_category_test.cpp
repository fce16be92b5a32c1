#include <gtest/gtest.h>

#include <set>

#include "common/number_text.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "support_files/monument_category.hpp"
#include "sample_lines.hpp"
#include "fakes/test_paths.hpp"

namespace benchlog {
namespace {

TEST(MonumentCategory, FirstLineWhoseTextFromColumnThreeEqualsTheCode) {
  struct Case { const char* code; const char* category; };
  const Case cases[] = {
      {"DB", "D"}, {"DS", "D"}, {"F", "R"},
      {"57", "L"},  // "L 57" stands before "X 57"
      {"71", "M"},
      {"N", "B"},   // "B   N  ": the text from column 3 is trimmed
      {"Z", ""},    // "OZ" has nothing from column 3
      {"", "O"},    // an empty code matches the first line without text from column 3
      {"db", ""},   // exact comparison
      {"XX", ""},
  };
  const CategoryTable table = ReadCategoryTable(testing::TestData("support/") + kMonumentCategoryFileName);
  for (const auto& c : cases) EXPECT_EQ(MonumentCategory(table, c.code), c.category) << "code '" << c.code << "'";
}

TEST(MonumentCategory, MissingFileIsAFileNotFoundFailure) {
  try {
    ReadCategoryTable(testing::TestData("support/") + "nowhere/" + kMonumentCategoryFileName);
    ADD_FAILURE() << "no failure";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.number, kFileNotFound);
  }
}

TEST(CommittedMonumentCategory, LandmarksAreTheTwoDigitCodesOtherThan71) {
  const CategoryTable table = ReadCategoryTable(testing::SourceSupport() + kMonumentCategoryFileName);
  struct Case { const char* code; const char* category; };
  const Case cases[] = {
      // The marker codes seen on real sheets (marker_codes.csv).
      {"DB", "D"}, {"DD", "D"}, {"DE", "D"}, {"DS", "D"}, {"57", "L"},
      {"F", "R"}, {"71", "M"}, {"49", "L"}, {"55", "L"}, {"Z", "O"},
  };
  for (const auto& c : cases) EXPECT_EQ(MonumentCategory(table, c.code), c.category) << c.code;
}

TEST(CommittedMonumentCategory, EveryMarkerCodeOfTheSampleHasACategory) {
  std::set<std::string> codes;
  for (const auto& description : test::ReadSampleDataset()) {
    for (const auto& line : description.lines) {
      if (Mid(line, 8, 9) == "_MARKER: ") codes.insert(RTrim(Mid(line, 17, 2)));
    }
  }
  ASSERT_GE(codes.size(), 12u);
  const CategoryTable table = ReadCategoryTable(testing::SourceSupport() + kMonumentCategoryFileName);
  for (const auto& code : codes) {
    const std::string category = MonumentCategory(table, code);
    EXPECT_EQ(category.size(), 1u) << "marker code " << code;
    const bool landmark = code.size() == 2 && IsNumeric(code) && code != "71";
    EXPECT_EQ(category == "L", landmark) << "marker code " << code;
  }
}

}  // namespace
}  // namespace benchlog

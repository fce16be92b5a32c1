#include <gtest/gtest.h>

#include <set>
#include <string>

#include "common/fit.hpp"
#include "export/export_test_support.hpp"
#include "export/parser/mark_record.hpp"

namespace benchlog {
namespace {

TEST(FixedText, StoringCutsOrPadsToTheWidth) {
  struct Case {
    std::string value;
    std::string stored;
  };
  const Case cases[] = {
      {"", "    "},         {"AB", "AB  "},     {"ABCD", "ABCD"},
      {"ABCDEF", "ABCD"},   {" A ", " A  "},    {std::string("A\0B", 3), "A B "},
  };
  for (const auto& c : cases) {
    FixedText<4> field;
    field = c.value;
    EXPECT_EQ(field.View(), c.stored) << c.value;
  }
}

TEST(FixedText, ComparesAsTheValueWouldBeStored) {
  FixedText<4> field;
  field = "12";
  EXPECT_TRUE(field == "12");
  EXPECT_TRUE(field == "12  ");
  EXPECT_FALSE(field == "1");
  EXPECT_FALSE(field == " 12");
  EXPECT_EQ(field.Trimmed(), "12");
  EXPECT_FALSE(field.IsBlank());
  field.Clear();
  EXPECT_TRUE(field.IsBlank());
  EXPECT_TRUE(field == "");
  EXPECT_EQ(field.Trimmed(), "");
}

// Every field is named once, and the widths add up to the record's size, so no field is missing
// from the list of names and none is laid out wider than its width.
TEST(MarkRecord, EveryFieldIsNamedOnceWithItsWidth) {
  MarkRecord record;
  std::set<std::string> names;
  std::size_t total = 0;
  VisitFields(record, [&](std::string_view name, const auto& field) {
    EXPECT_TRUE(names.insert(std::string(name)).second) << name;
    total += field.View().size();
  });
  EXPECT_EQ(sizeof(MarkRecord), total);
}

TEST(MarkRecord, FieldsReadByName) {
  MarkRecord record;
  record.Latitude = "360342.56888";
  record.Net = "ABTHPS";
  EXPECT_EQ(FieldText(record, "Latitude"), "360342.56888");
  EXPECT_EQ(FieldText(record, "Net"), "ABTHP");
  EXPECT_EQ(FieldText(record, "Quad"), std::string(35, ' '));
  EXPECT_FALSE(FieldText(record, "latitude").has_value());
  EXPECT_FALSE(FieldText(record, "").has_value());
}

TEST(MarkRecord, ClearBlanksEveryField) {
  MarkRecord record;
  VisitFields(record, [](std::string_view, auto& field) { field = std::string(7000, 'Q'); });
  ClearMarkRecord(record);
  VisitFields(record, [](std::string_view name, const auto& field) { EXPECT_TRUE(field.IsBlank()) << name; });
}

TEST(MarkRecord, HorizontalAndVerticalFlags) {
  for (const auto& c : testing::ReadRows("export/control_flags.txt", 9, '|')) {
    MarkRecord record;
    record.HorizOrder = c[0];
    record.HorizType = c[1];
    record.VertOrder = c[2];
    EXPECT_EQ(HasHorizontalControl(record), c[3] == "1") << c[0] << "/" << c[1];
    EXPECT_EQ(HasVerticalControl(record), c[4] == "1") << c[2];
  }
}

}  // namespace
}  // namespace benchlog

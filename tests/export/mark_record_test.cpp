#include <gtest/gtest.h>

#include <cstdio>
#include <set>
#include <string>

#include "common/text.hpp"
#include "export/export_names.hpp"
#include "export/listing_lines.hpp"
#include "export/export_test_support.hpp"
#include "export/parser/mark_record.hpp"
#include "fakes/test_rows.hpp"

namespace benchlog {
namespace {

std::string Bool(bool value) { return value ? "1" : "0"; }

// A 4-wide field holding `value`, cleared when `clear` is "1".
FixedText<4> Stored(const std::string& value, const std::string& clear) {
  FixedText<4> field;
  field = value;
  if (clear == "1") field.Clear();
  return field;
}

TEST(ExportHelpers, GiveTheResultsOfTheCaseTable) {
  using Args = testing::CallArgs;
  const testing::CallTable calls = {
      {"FixedText", {2, [](const Args& a) {
         const FixedText<4> field = Stored(a[0], a[1]);
         return field.Str() + "|" + std::string(field.Trimmed()) + "|" + Bool(field.IsBlank());
       }}},
      {"FixedTextEquals", {3, [](const Args& a) { return Bool(Stored(a[0], a[1]) == a[2]); }}},
      {"ElevationInFeet", {1, [](const Args& a) {
         char text[32];
         std::snprintf(text, sizeof text, "%.9g", static_cast<double>(ElevationInFeet(std::stof(a[0]))));
         return std::string(text);
       }}},
      {"FieldText", {1, [](const Args& a) {
         MarkRecord record;
         record.Latitude = "360342.56888";
         record.Net = "ABTHPS";
         const auto text = FieldText(record, a[0]);
         return text ? std::string(*text) : "no field";
       }}},
      {"ExportNames", {1, [](const Args& a) {
         const ExportNames n = ExportNamesOf(a[0]);
         return Join({n.stem, n.hcl, n.vcl, n.mdb, n.sa6, n.msf, n.err, n.gwp, n.des}, "|");
       }}},
  };
  testing::CheckCalls("export/cases.txt", 26, calls);
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

#include "export/parser/mark_record.hpp"

#include <cstring>
#include <type_traits>

namespace benchlog {

// The record is nothing but its fields' characters, one after the other, so blanking it is one
// fill: the export clears it for every Description.
static_assert(std::is_trivially_copyable_v<MarkRecord> && std::is_standard_layout_v<MarkRecord>);

void ClearMarkRecord(MarkRecord& record) { std::memset(static_cast<void*>(&record), ' ', sizeof(MarkRecord)); }

std::optional<std::string_view> FieldText(const MarkRecord& record, std::string_view name) {
  std::optional<std::string_view> text;
  VisitFields(record, [&](std::string_view fieldName, const auto& field) {
    if (!text && fieldName == name) text = field.View();
  });
  return text;
}

bool HasHorizontalControl(const MarkRecord& record) {
  const std::string_view order = record.HorizOrder.Trimmed();
  return !order.empty() && order != "4" && record.HorizType != "W" && record.HorizType != "X";
}

bool HasVerticalControl(const MarkRecord& record) { return !record.VertOrder.Trimmed().empty(); }

}  // namespace benchlog

#include "export/mark_record.hpp"

namespace benchlog {

void ClearMarkRecord(MarkRecord& record) {
  VisitFields(record, [](std::string_view, auto& field) { field.Clear(); });
}

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

#include "geodesy/format_padded.hpp"

#include "common/format.hpp"
#include "common/number_text.hpp"
#include "common/text.hpp"

namespace benchlog {
namespace {

std::string PadLeft(std::string text, std::size_t width) {
  if (text.size() < width) text.insert(0, width - text.size(), ' ');
  return text;
}

}  // namespace

std::string FormatPadded(double value, std::string_view pattern) {
  return PadLeft(Format(value, pattern), pattern.size());
}

std::string FormatPadded(std::string_view valueText, std::string_view pattern) {
  const std::string trimmed = Trim(valueText);
  if (trimmed.empty()) return "";
  if (!IsNumeric(trimmed)) return PadLeft(std::string(valueText), pattern.size());
  return PadLeft(Format(Val(trimmed), pattern), pattern.size());
}

}  // namespace benchlog

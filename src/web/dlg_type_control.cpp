#include "web/dlg_type_control.hpp"

#include <algorithm>

namespace benchlog {
namespace {

template <std::size_t N>
std::string FirstSetPart(const std::array<bool, N>& options, const std::array<dlgTypeControl::Choice, N>& choices) {
  const auto first = std::find(options.begin(), options.end(), true);
  return first == options.end() ? "" : choices[static_cast<std::size_t>(first - options.begin())].part;
}

}  // namespace

std::string dlgTypeControl::TypeCode() const {
  return FirstSetPart(Option1, kTypes) + FirstSetPart(Option2, kStabilities);
}

void dlgTypeControl::SetOption1(std::size_t index) {
  Option1.fill(false);
  Option1.at(index) = true;
}

void dlgTypeControl::SetOption2(std::size_t index) {
  Option2.fill(false);
  Option2.at(index) = true;
}

void dlgTypeControl::cmdOkay_Click() {
  Tag = TypeCode();
  Visible = false;
}

void dlgTypeControl::CancelButton_Click() {
  Tag.clear();
  Visible = false;
}

KeyOutcome dlgTypeControl::filterKey(int keyAscii) {
  if (keyAscii != kKeyEscape) return {keyAscii};
  CancelButton_Click();
  return {};
}

}  // namespace benchlog

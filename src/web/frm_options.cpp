#include "web/frm_options.hpp"

#include "common/number_text.hpp"

namespace benchlog {
namespace {

std::optional<long> Position(const SettingsStore& settings, const char* key) {
  const std::string text = settings.GetSetting(frmOptions::kSection, key, "");
  if (text.empty()) return std::nullopt;
  return static_cast<long>(Val(text));
}

}  // namespace

void frmOptions::Load(SettingsStore& settings) {
  settingsStore = &settings;
  Top = Position(settings, "Top");
  Left = Position(settings, "Left");
  Loaded = true;
}

void frmOptions::Unload(bool normalState) {
  if (settingsStore && normalState) {
    if (Top && *Top >= 0) settingsStore->SaveSetting(kSection, "Top", std::to_string(*Top));
    if (Left && *Left >= 0) settingsStore->SaveSetting(kSection, "Left", std::to_string(*Left));
  }
  Clear();
  Loaded = false;
  Visible = false;
}

void frmOptions::Clear() {
  cboChoicesList.clear();
  cboChoices.clear();
}

KeyOutcome frmOptions::filterKey(int keyAscii) {
  if (keyAscii == kKeyEscape) {
    Unload();
    return {};
  }
  if (keyAscii == kKeyEnter) {
    cmdOkay_Click();
    return {};
  }
  if (keyAscii >= 'a' && keyAscii <= 'z') return {keyAscii - 'a' + 'A'};
  return {keyAscii};
}

void frmOptions::cmdOkay_Click() {
  Tag = "Okay";
  Visible = false;
}

}  // namespace benchlog

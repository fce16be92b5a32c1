#include "web/frm_listings.hpp"

#include <algorithm>

#include "common/number_text.hpp"

namespace benchlog {

void frmListings::Load(SettingsStore& settings) {
  settingsStore = &settings;
  Top = static_cast<long>(Val(settings.GetSetting(kSection, "Top", "0")));
  Left = static_cast<long>(Val(settings.GetSetting(kSection, "Left", "0")));
  Loaded = true;
}

void frmListings::Unload(bool normalState) {
  if (settingsStore && normalState) {
    if (Top >= 0) settingsStore->SaveSetting(kSection, "Top", std::to_string(Top));
    if (Left >= 0) settingsStore->SaveSetting(kSection, "Left", std::to_string(Left));
  }
  Clear();
  Loaded = false;
  Visible = false;
}

void frmListings::Clear() {
  lstChoices.clear();
  selected.clear();
}

void frmListings::AddItem(std::string entry) {
  lstChoices.push_back(std::move(entry));
  selected.push_back(false);
}

void frmListings::SetUpForRun() {
  Width = kRunWidth;
  HeightPixels = kRunHeightPixels;
  caption = kRunCaption;
}

TwipsRect frmListings::ListPlace(long innerWidth, long innerHeight) {
  return {kMargin, kMargin, std::max(0L, innerWidth - 2 * kMargin), std::max(0L, innerHeight - kListLessThanInner)};
}

TwipsRect frmListings::ButtonPlace(long innerWidth, long innerHeight) {
  const TwipsRect list = ListPlace(innerWidth, innerHeight);
  const long top = list.top + list.height + kButtonGap;
  return {kMargin, top, list.width, std::max(0L, innerHeight - kMargin - top)};
}

KeyOutcome frmListings::filterKey(int keyAscii) {
  if (keyAscii != kKeyEscape) return {keyAscii};
  Unload();
  return {};
}

}  // namespace benchlog

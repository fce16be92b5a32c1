#include "web/dlg_lat_lon_rad.hpp"

#include <cstring>

namespace benchlog {

void dlgLatLonRad::Load(const Configuration& config) {
  Text1[0] = config.hemi1;
  Text1[1] = config.hemi2;
  Loaded = true;
}

KeyOutcome dlgLatLonRad::filterKey(int keyAscii) {
  if (keyAscii == 0 || keyAscii == kKeyBackspace || keyAscii == ' ') return {keyAscii};
  if (keyAscii == kKeyEnter) return {0, false, true};
  if (keyAscii == kKeyEscape) {
    CancelButton_Click();
    return {};
  }
  if (keyAscii > 0 && keyAscii < 128) {
    if (keyAscii == '.' || (keyAscii >= '0' && keyAscii <= '9') || std::strchr("ENSW", keyAscii)) return {keyAscii};
    if (std::strchr("ensw", keyAscii)) return {keyAscii - 'a' + 'A'};
  }
  return {0, true, false};
}

std::pair<int, int> dlgLatLonRad::SelectionOnFocus(const std::string& text) {
  if (text.empty()) return {0, 0};
  return {1, static_cast<int>(text.size()) - 1};
}

void dlgLatLonRad::OKButton_Click() {
  Tag = "Okay";
  Visible = false;
}

void dlgLatLonRad::CancelButton_Click() {
  Tag.clear();
  Visible = false;
}

}  // namespace benchlog

#include "session/frm_select_points.hpp"

#include "common/number_text.hpp"
#include "common/text.hpp"

namespace benchlog {

void FrmSelectPoints::Clear() {
  lstPoints.clear();
  selected.clear();
  cmdSelectAllVisible = true;
}

void FrmSelectPoints::AddItem(std::string item) {
  lstPoints.push_back(std::move(item));
  selected.push_back(false);
}

std::string FrmSelectPoints::PidOfItem(const std::string& item) { return Trim(Right(item, 6)); }

void FrmSelectPoints::cmdSelectAll_Click() {
  for (std::size_t i = 1; i < selected.size(); ++i) selected[i] = true;
}

void FrmSelectPoints::Load(const SettingsStore& settings) {
  placement.top = static_cast<long>(Val(settings.GetSetting(kSection, "Top", "0")));
  placement.left = static_cast<long>(Val(settings.GetSetting(kSection, "Left", "0")));
  placement.height = static_cast<long>(Val(settings.GetSetting(kSection, "Height", "7605")));
  placement.width = static_cast<long>(Val(settings.GetSetting(kSection, "Width", "9720")));
}

void FrmSelectPoints::Unload(SettingsStore& settings) const {
  settings.SaveSetting(kSection, "Top", std::to_string(placement.top));
  settings.SaveSetting(kSection, "Left", std::to_string(placement.left));
  settings.SaveSetting(kSection, "Height", std::to_string(placement.height));
  settings.SaveSetting(kSection, "Width", std::to_string(placement.width));
}

std::string SelectionItemOfRecord(const std::string& record) {
  return Mid(record, 43, 30) + " " + Mid(record, 74, 23) + " " + Mid(record, 1, 6);
}

}  // namespace benchlog

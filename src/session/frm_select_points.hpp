#pragma once
// frmSelectPoints: the one multi-selection list of the program. The caller fills the items, sets
// the caption and the tag "Canceled", and shows it modally; "Okay" or "Canceled" in the tag tells
// the result, and the selection says which items were chosen. The last six characters of an
// item, trimmed, are always its PID.
#include <cstdint>
#include <string>
#include <vector>

#include "platform/dialog_model.hpp"
#include "platform/settings_store.hpp"
#include "platform/window_placement.hpp"

namespace benchlog {

class FrmSelectPoints : public DialogModel {
 public:
  static constexpr const char* kSection = "frmSelectPoints";

  std::string caption = "Select Points to Print";
  std::string lblPoints = "Select Point:";
  std::vector<std::string> lstPoints;  // the items, in the order of the index
  std::vector<bool> selected;          // one flag per item
  bool cmdSelectAllVisible = true;    // Clear() shows the button again
  std::uint32_t backColor = 16777215;  // the list takes the main window's colours when active
  std::uint32_t foreColor = 0;
  WindowPlacement placement{kNormal, 0, 0, 7605, 9720};

  void Clear();
  void AddItem(std::string item);
  bool Selected(std::size_t i) const { return i < selected.size() && selected[i]; }
  // The PID of an item: its last six characters, trimmed.
  static std::string PidOfItem(const std::string& item);

  // Selects the items from the second to the last; the first is left as it was.
  void cmdSelectAll_Click();
  void cmdOkay_Click() { Tag = "Okay"; }
  void cmdCancel_Click() { Tag = "Canceled"; }

  void Load(const SettingsStore& settings);  // geometry at load
  void Unload(SettingsStore& settings) const;
};

// The list item of an index record: Designation (30), a blank, County (23), a blank, Pid.
std::string SelectionItemOfRecord(const std::string& record);

}  // namespace benchlog

#pragma once
// frmOptions: a combo box cboChoices and an "Ok" button. The county command fills the box, sets its
// text and the caption, shows the dialog and reads the box's text after it closes. Esc unloads the
// dialog, so the reader finds an empty box.
#include <optional>
#include <string>
#include <vector>

#include "platform/dialog_model.hpp"
#include "platform/settings_store.hpp"
#include "web/key_filter.hpp"

namespace benchlog {

class frmOptions : public DialogModel {
 public:
  static constexpr const char* kSection = "frmOptions";

  std::string caption;
  std::vector<std::string> cboChoicesList;
  std::string cboChoices;  // the box's text
  // Position in twips from the settings; none: centred on the screen. The window always centres
  // itself across the screen when it is activated.
  std::optional<long> Top, Left;
  bool Loaded = false;
  bool Visible = false;  // set by the window while shown; cleared when the dialog hides or unloads

  SettingsStore* settingsStore = nullptr;  // where Unload saves, set by Load

  // Takes "Top" and "Left" of section "frmOptions" (absent: centred).
  void Load(SettingsStore& settings);
  // Empties the box and forgets the dialog's state; in normal window state stores "Top" and "Left"
  // when they are not negative.
  void Unload(bool normalState = true);
  void Clear();
  void AddItem(std::string item) { cboChoicesList.push_back(std::move(item)); }

  // A key typed in the box: a lower-case letter becomes its capital; Enter is Ok; Esc is swallowed
  // and unloads the dialog.
  KeyOutcome filterKey(int keyAscii);
  void cmdOkay_Click();  // tag "Okay", the dialog hides
};

}  // namespace benchlog

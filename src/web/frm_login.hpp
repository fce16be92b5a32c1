#pragma once
// frmLogin ("Internet Access"): the user name and password the service asks for when it answers
// "Unauthorized", as a model. The Qt window shows it modally and forwards the buttons and Esc.
#include <string>

#include "platform/dialog_model.hpp"
#include "platform/settings_store.hpp"

namespace benchlog {

class frmLogin : public DialogModel {
 public:
  static constexpr const char* kSection = "frmLogin";
  static constexpr const char* kCaption = "Internet Access";

  std::string txtUserName;
  std::string txtPassword;  // shown masked with "*"
  int chkRember = 0;        // "Remember password": 0 or 1
  bool LoginSucceeded = false;

  // On activation: the box, the user name and the stored password (whatever the box's state) from
  // the settings "CheckBox", "UserName" and "Password".
  void Activate(const SettingsStore& settings);
  // OK: the login stands; "CheckBox" and "UserName" are stored, "Password" only while the box is
  // ticked (an unticked box leaves a password stored earlier in place). Tag "Okay".
  void cmdOK_Click(SettingsStore& settings);
  void cmdCancel_Click() { LoginSucceeded = false; }
  // Esc unloads the dialog, which reads as a refused login.
  void Escape() { LoginSucceeded = false; }
};

}  // namespace benchlog

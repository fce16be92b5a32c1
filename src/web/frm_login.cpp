#include "web/frm_login.hpp"

#include "common/number_text.hpp"

namespace benchlog {

void frmLogin::Activate(const SettingsStore& settings) {
  chkRember = static_cast<int>(Val(settings.GetSetting(kSection, "CheckBox", "0")));
  txtUserName = settings.GetSetting(kSection, "UserName", "");
  txtPassword = settings.GetSetting(kSection, "Password", "");
}

void frmLogin::cmdOK_Click(SettingsStore& settings) {
  LoginSucceeded = true;
  settings.SaveSetting(kSection, "CheckBox", std::to_string(chkRember));
  settings.SaveSetting(kSection, "UserName", txtUserName);
  if (chkRember == 1) settings.SaveSetting(kSection, "Password", txtPassword);
  Tag = "Okay";
}

}  // namespace benchlog

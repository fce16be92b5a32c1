#pragma once
// The Qt window of frmLogin, "Internet Access": user name, masked password, "Remember password",
// OK and Cancel. A text box selects all its text when it gets the focus.
#include "platform/platform.hpp"
#include "platform/qt/dialog_registry.hpp"
#include "web/frm_login.hpp"

class QCheckBox;
class QLineEdit;

namespace benchlog::qt {

class FrmLoginWindow final : public ModelDialog {
 public:
  FrmLoginWindow(frmLogin& model, Platform& platform, QWidget* parent);
  void LoadFromModel() override;

 protected:
  void reject() override;  // Esc and the close box: the dialog is unloaded, a refused login
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Ok();
  void Cancel();

  frmLogin& model_;
  Platform& platform_;
  QLineEdit* txtUserName_;
  QLineEdit* txtPassword_;
  QCheckBox* chkRember_;
};

}  // namespace benchlog::qt

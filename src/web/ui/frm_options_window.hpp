#pragma once
// The Qt window of frmOptions: the editable combo box cboChoices and the button "Ok". Typed letters
// go through the model's key filter; Enter and Ok hide the window, Esc and the close box unload the
// model. The window stands where the model says and centres itself across the screen when shown.
#include "platform/qt/dialog_registry.hpp"
#include "web/frm_options.hpp"

class QComboBox;

namespace benchlog::qt {

class FrmOptionsWindow final : public ModelDialog {
 public:
  FrmOptionsWindow(frmOptions& model, QWidget* parent);
  void LoadFromModel() override;

 protected:
  void showEvent(QShowEvent* event) override;
  void reject() override;  // Esc and the close box

 private:
  void TakePosition();
  void CloseIfHidden();

  frmOptions& model_;
  QComboBox* cboChoices_;
  bool filling_ = false;
};

}  // namespace benchlog::qt

#pragma once
// The Qt window of dlgTypeControl, "Type of Control": the frames of type and stability options and
// the buttons Okay and Cancel. Esc and the close box are Cancel.
#include <vector>

#include "platform/qt/dialog_registry.hpp"
#include "web/dlg_type_control.hpp"

class QRadioButton;

namespace benchlog::qt {

class DlgTypeControlWindow final : public ModelDialog {
 public:
  DlgTypeControlWindow(dlgTypeControl& model, QWidget* parent);
  void LoadFromModel() override;

 protected:
  void reject() override;

 private:
  void Finish(bool okay);

  dlgTypeControl& model_;
  std::vector<QRadioButton*> Option1_, Option2_;
};

}  // namespace benchlog::qt

#pragma once
// The Qt window of FrmServiceAddress: the service's address and the request time-out, OK and Cancel.
// OK keeps the window open while the model finds a fault in what was typed.
#include "platform/platform.hpp"
#include "platform/qt/dialog_registry.hpp"
#include "web/service_address_form.hpp"

class QLineEdit;

namespace benchlog::qt {

class FrmServiceAddressWindow final : public ModelDialog {
 public:
  FrmServiceAddressWindow(FrmServiceAddress& model, Platform& platform, QWidget* parent);
  void LoadFromModel() override;

 protected:
  void reject() override;  // Esc and the close box cancel

 private:
  void Ok();

  FrmServiceAddress& model_;
  Platform& platform_;
  QLineEdit* txtAddress_;
  QLineEdit* txtTimeout_;
};

}  // namespace benchlog::qt

#include "web/ui/web_dialogs.hpp"

#include "platform/qt/dialog_registry.hpp"
#include "web/ui/frm_login_window.hpp"
#include "web/ui/frm_service_address_window.hpp"

namespace benchlog {

void RegisterWebDialogs(Platform& platform) {
  qt::RegisterDialog(typeid(FrmServiceAddress), [&platform](DialogModel& model, QWidget* parent) -> qt::ModelDialog* {
    return new qt::FrmServiceAddressWindow(static_cast<FrmServiceAddress&>(model), platform, parent);
  });
  qt::RegisterDialog(typeid(frmLogin), [&platform](DialogModel& model, QWidget* parent) -> qt::ModelDialog* {
    return new qt::FrmLoginWindow(static_cast<frmLogin&>(model), platform, parent);
  });
}

}  // namespace benchlog

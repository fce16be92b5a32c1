#include "view/ui/view_dialogs.hpp"

#include "platform/qt/dialog_registry.hpp"
#include "view/ui/frm_select_points_window.hpp"
#include "view/ui/frm_view_window.hpp"

namespace benchlog {

void RegisterViewDialogs() {
  qt::RegisterDialog<frmView, qt::FrmViewWindow>();
  qt::RegisterDialog<FrmSelectPoints, qt::FrmSelectPointsWindow>();
}

}  // namespace benchlog

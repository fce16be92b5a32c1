#include "session/ui/session_dialogs.hpp"

#include "platform/qt/dialog_registry.hpp"
#include "session/ui/frm_select_points_window.hpp"
#include "session/ui/frm_view_window.hpp"

namespace benchlog {

void RegisterSessionDialogs() {
  qt::RegisterDialog<frmView, qt::FrmViewWindow>();
  qt::RegisterDialog<FrmSelectPoints, qt::FrmSelectPointsWindow>();
}

}  // namespace benchlog

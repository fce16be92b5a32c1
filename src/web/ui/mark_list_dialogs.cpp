#include "web/ui/mark_list_dialogs.hpp"

#include "platform/qt/dialog_registry.hpp"
#include "web/ui/dlg_lat_lon_rad_window.hpp"
#include "web/ui/dlg_type_control_window.hpp"
#include "web/ui/frm_listings_window.hpp"
#include "web/ui/frm_options_window.hpp"

namespace benchlog {

void RegisterMarkListDialogs() {
  qt::RegisterDialog<frmOptions, qt::FrmOptionsWindow>();
  qt::RegisterDialog<frmListings, qt::FrmListingsWindow>();
  qt::RegisterDialog<dlgTypeControl, qt::DlgTypeControlWindow>();
  qt::RegisterDialog<dlgLatLonRad, qt::DlgLatLonRadWindow>();
}

}  // namespace benchlog

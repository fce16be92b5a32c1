#include "export/ui/export_dialogs.hpp"

#include "export/ui/frm_cdt_window.hpp"
#include "export/ui/frm_output_options_window.hpp"
#include "platform/qt/dialog_registry.hpp"

namespace benchlog {

void RegisterExportDialogs() {
  qt::RegisterDialog<frmOutputOptions, qt::FrmOutputOptionsWindow>();
  qt::RegisterDialog<frmCDT, qt::FrmCdtWindow>();
}

}  // namespace benchlog

#include "app/ui/all_dialogs.hpp"

#include "app/ui/about_windows.hpp"
#include "dataset/ui/frm_get_file_window.hpp"
#include "export/ui/export_dialogs.hpp"
#include "handheld/ui/dlg_delim_and_type_window.hpp"
#include "plot/ui/frm_image_window.hpp"
#include "plot/ui/frm_plot_window.hpp"
#include "session/ui/session_dialogs.hpp"
#include "view/ui/editor_dialogs.hpp"
#include "web/ui/web_dialogs.hpp"
#include "web/ui/mark_list_dialogs.hpp"

namespace benchlog::qt {

void RegisterAllDialogs(Platform& platform) {
  RegisterAppDialogs(platform);
  RegisterSessionDialogs();
  RegisterDatasetDialogs();
  RegisterExportDialogs();
  RegisterWebDialogs(platform);
  RegisterMarkListDialogs();
  RegisterEditorDialogs();
  RegisterHandheldDialogs(platform);
  RegisterImageWindows(platform);
  qt::RegisterPlotWindow();
}

}  // namespace benchlog::qt

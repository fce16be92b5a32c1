#include "app/ui/all_dialogs.hpp"

#include "app/ui/about_windows.hpp"
#include "dataset/ui/frm_get_file_window.hpp"
#include "view/ui/view_dialogs.hpp"

namespace benchlog::qt {

void RegisterAllDialogs(Platform& platform) {
  RegisterAppDialogs(platform);
  RegisterViewDialogs();
  RegisterDatasetDialogs();
}

}  // namespace benchlog::qt

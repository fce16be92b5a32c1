#include "app/ui/all_dialogs.hpp"

#include "app/ui/about_windows.hpp"
#include "view/ui/view_dialogs.hpp"

namespace benchlog::qt {

void RegisterAllDialogs(Platform& platform) {
  RegisterAppDialogs(platform);
  RegisterViewDialogs();
}

}  // namespace benchlog::qt

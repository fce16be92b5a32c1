#include "app/ui/all_dialogs.hpp"

#include "app/ui/about_windows.hpp"

namespace benchlog::qt {

void RegisterAllDialogs(Platform& platform) { RegisterAppDialogs(platform); }

}  // namespace benchlog::qt

#pragma once
// The web update's windows, registered with the Qt Ui at start.
#include "platform/platform.hpp"

namespace benchlog {

void RegisterWebDialogs(Platform& platform);

}  // namespace benchlog

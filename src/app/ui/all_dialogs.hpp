#pragma once
#include "platform/platform.hpp"

namespace benchlog::qt {

// Registers the windows of every subsystem's models with the dialog registry.
void RegisterAllDialogs(Platform& platform);

}  // namespace benchlog::qt

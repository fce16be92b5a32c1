#pragma once
#include "app/session.hpp"
#include "platform/platform.hpp"

namespace benchlog {

bool LoadDatasetIndex(Session& session, Platform& platform);

}  // namespace benchlog

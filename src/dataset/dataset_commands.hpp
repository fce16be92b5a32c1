#pragma once
// The dataset's menu commands.
#include "platform/platform.hpp"
#include "session/session.hpp"

namespace benchlog {

// Reindex: rebuilds the index of the current dataset behind the progress dialog ("Creating
// Index", "Please wait...", one step per 5000 bytes) and shows "Index file created.". With no
// dataset open it says "No mkdata file open!"; a dataset that has gone fails with "File not found".
void mnuReindex(Session& session, Platform& platform);

}  // namespace benchlog

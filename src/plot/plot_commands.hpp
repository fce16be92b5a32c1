#pragma once
// The main window's Plot command.
#include "platform/platform.hpp"
#include "session/session.hpp"

namespace benchlog {

// Prepares the plot files under the hourglass, then opens the plot window (reading its settings
// when it was closed) and draws the full view; the window is shown modeless. A non-empty error
// text is shown in a critical box titled "Plot Points".
void mnuPlot(Session& session, Platform& platform);

}  // namespace benchlog

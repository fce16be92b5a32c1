#pragma once
// Tools > Compute Pos of Ref Obj: a horizontal mark picked from the index, and the positions of its
// reference objects shown in the viewer. Nothing is written to the dataset or to a file.
#include "platform/platform.hpp"
#include "session/session.hpp"

namespace benchlog {

// Cancelling the list, an empty list, a Description that cannot be read and any run-time failure
// (a reference mark numbered above 10) end the command with no message and nothing shown.
void mnuCompPos(Session& session, Platform& platform);

}  // namespace benchlog

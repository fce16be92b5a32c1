#pragma once
// The Descriptions menu: the marks of a class picked from a list and read together in the viewer,
// and a Description fetched by its PID.
#include "platform/platform.hpp"
#include "session/session.hpp"

namespace benchlog {

// Lists the index elements of the class (see class_filter.hpp) in frmSelectPoints, then shows the
// Descriptions of the selected marks one after another in frmView. With no index at all the walk
// fails with "Subscript out of range"; more than 10000 selected marks fail the same way.
void ViewDescriptionsByClass(Session& session, Platform& platform, int classCode);

// Asks "Enter PID:" and shows that mark's Description.
void mnuLocByPid(Session& session, Platform& platform);

}  // namespace benchlog

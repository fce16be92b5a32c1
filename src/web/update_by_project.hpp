#pragma once
#include "platform/platform.hpp"
#include "session/session.hpp"

namespace benchlog {

// Update From OCO Website > By Project: a project id and a type of control; every mark of the
// project's list that the keep rule lets through goes on to the replacement, after a confirmation
// whose No ends the command.
void mnuUpdtbyProj(Session& session, Platform& platform);

}  // namespace benchlog

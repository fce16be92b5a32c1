#pragma once
#include "platform/platform.hpp"
#include "session/session.hpp"

namespace benchlog {

// Update From OCO Website > By County: a state and a county from "Country.dat", a type of control,
// the county's mark list from the service, the user's choice of its stations, and the chosen PIDs
// that the keep rule lets through go on to the replacement of their Descriptions.
void mnuUpdateByCounty(Session& session, Platform& platform);

}  // namespace benchlog

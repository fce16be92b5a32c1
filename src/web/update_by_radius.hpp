#pragma once
#include "platform/platform.hpp"
#include "session/session.hpp"

namespace benchlog {

// Update From OCO Website > By Lat, Lon, Radius: a point and a radius, a type of control, the marks
// around the point from the service, the user's choice of them, and the chosen PIDs that the keep
// rule lets through go on to the replacement. No read-only check.
void mnuUpdtLatLonRad(Session& session, Platform& platform);

}  // namespace benchlog

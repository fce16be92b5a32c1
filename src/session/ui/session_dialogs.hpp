#pragma once
// The Qt windows of the viewing subsystem, registered once at start.
namespace benchlog {

// Registers the windows of frmView and frmSelectPoints.
void RegisterSessionDialogs();

}  // namespace benchlog

#pragma once
// The Qt windows of the viewing subsystem, registered once at start.
namespace benchlog {

// Registers the window of frmView.
void RegisterViewDialogs();

}  // namespace benchlog

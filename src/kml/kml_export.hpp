#pragma once
// Google Earth: every mark of the open index in a KML file beside the dataset, opened with the
// program the system has for ".kml".
#include <string>

#include "platform/platform.hpp"
#include "session/session.hpp"

namespace benchlog {

// The KML file of a dataset: its path without the extension, ".kml".
std::string KmlPathFor(const std::string& datasetPath);

// Writes the file (an older one is replaced with no question) and hands it to the system's
// shell, whose answer is not looked at. A run-time failure (an empty index, a file that cannot be
// written) ends the command with no message and leaves an older file as it was.
void mnuViewGE(Session& session, Platform& platform);

}  // namespace benchlog

#pragma once
// The commands of the Listings menu and the files the View menu shows: the mark reports, the
// error file, photos and sketches, a text file and the Street Atlas file.
#include "platform/platform.hpp"
#include "session/session.hpp"

namespace benchlog {

void mnuViewPhotoList(Session& session, Platform& platform);
void mnuViewSketchList(Session& session, Platform& platform);
void mnuPostedHts(Session& session, Platform& platform);
void mnuBmNotGPSed(Session& session, Platform& platform);
void mnuRecNotPhoto(Session& session, Platform& platform);
// Asks the number of years (default 10); 0 or no number ends the command.
void mnuNotSearched(Session& session, Platform& platform);
// Asks the agency; blank lists every mark not recovered.
void mnuPrintNRList(Session& session, Platform& platform);

// The export's error file in the viewer, at the listings' font size 8.
void mnuViewError(Session& session, Platform& platform);
// A mark with a photo (sketch) picked from a list, shown in frmImage.
void mnuViewPhoto(Session& session, Platform& platform);
void mnuViewSketch(Session& session, Platform& platform);
// A ".txt" file chosen in the open dialog, in the viewer, maximised.
void mnuViewText(Session& session, Platform& platform);

}  // namespace benchlog

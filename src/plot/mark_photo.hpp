#pragma once
// A mark's photo from the plot: "<PID>ph.jpg", else "<designation>ph.jpg", in the photo folder.
#include <string>

namespace benchlog {

struct Session;
struct Platform;

// The folder is the setting "PhotoDir" of "Settings", or the dataset's folder when that is empty;
// it must end in its separator. The first of the two files that exists is shown in frmImage,
// modal; with neither, "Picture file name not found." titled "View Picture". A picture that cannot
// be read throws its RuntimeFailure to the caller.
void ShowMarkPhoto(Session& session, Platform& platform, const std::string& pid, const std::string& designation);

}  // namespace benchlog

#pragma once
// The map image behind the main window, and the scrolled picture that it and frmImage are made
// of: a fixed viewport (Picture1), the picture at its natural size inside it (Picture2), and two
// scroll bars that slide the picture. Nothing links the pixels to coordinates. Sizes in pixels.
#include <string>

#include "platform/dialog_model.hpp"
#include "platform/picture_reader.hpp"
#include "platform/platform.hpp"
#include "session/session.hpp"

namespace benchlog {

struct ScrollBar {
  int Value = 0;
  int Max = 0;
  int SmallChange = 0;
  int LargeChange = 0;
};

struct ScrolledPicture {
  std::string picture;  // the file Picture2 shows; "" when none
  int picture1Width = 0, picture1Height = 0;
  int picture2Left = 0, picture2Top = 0, picture2Width = 0, picture2Height = 0;
  ScrollBar HScroll1, VScroll1;
  bool scrollBarsVisible = false;
  bool picture2Visible = false;

  // Reads the picture (a failure leaves the view as it was), shows the bars and Picture2 at the
  // viewport's origin with the picture's size, and sets the steps 10 and 100.
  void Load(PictureReader& reader, const std::string& path);
  // The viewport fills the client area less the vertical bar's width and the horizontal bar's
  // height; the bars' maxima are the picture's size less the viewport's (negative when it is smaller).
  void Resize(int clientWidth, int clientHeight, int vBarWidth, int hBarHeight);
  void HScroll1_Change(int value);  // Picture2's left becomes -value
  void VScroll1_Change(int value);  // Picture2's top becomes -value
};

// The main window's map: shown in its client area once loaded.
class MapImage : public DialogModel {
 public:
  ScrolledPicture view;
  // The main window's resize step: only with a map loaded, and only when the client area is wider
  // than the vertical bar and higher than the horizontal one.
  void Resize(bool mapLoaded, int clientWidth, int clientHeight, int vBarWidth, int hBarHeight);
};

// "LastMapFile" of "Settings"; by default the program's icon, so the open dialog starts in its folder.
std::string LastMapFile(const Platform& platform);

// Loads the map named by "LastMapFile" behind "Loading Map Image" / "Please wait...", shows it in
// the main window and sets the session's map flag. An unreadable picture throws its failure.
void ShowMap(Session& session, Platform& platform);

// The file-open dialog for a map image (cancelling ends the command), the path kept in
// "LastMapFile", then ShowMap.
void mnuOpenMap(Session& session, Platform& platform);

}  // namespace benchlog

#pragma once
// frmImage: the modal picture window that shows a mark's photo or sketch in a scrolled view. F10
// offers every ".jpg" of the dataset's folder in a combo box, so the user can page through them.
#include <string>
#include <vector>

#include "platform/dialog_model.hpp"
#include "platform/picture_reader.hpp"
#include "platform/printer.hpp"
#include "platform/settings_store.hpp"
#include "platform/window_placement.hpp"
#include "plot/map_image.hpp"

namespace benchlog {

class frmImage : public DialogModel {
 public:
  static constexpr const char* kSection = "frmImage";

  ScrolledPicture view;
  std::vector<std::string> cboPicViewer;
  bool cboPicViewerVisible = false;
  WindowPlacement placement{kNormal, 0, 0, 6000, 7500};  // twips
  int clientWidth = 0, clientHeight = 0, vBarWidth = 0, hBarHeight = 0;  // pixels, kept by the window

  // "Height" (6000) and "Width" (7500) of section "frmImage"; "Top" and "Left" centre the window
  // on a screen of the given size (twips) by default.
  void Load(const SettingsStore& settings, long screenWidth, long screenHeight);
  // Only in the normal state: "Top" and "Left" when not negative, "Height" and "Width". The combo
  // box is cleared and hidden in every state.
  void Unload(SettingsStore& settings);

  // Reads the picture into the view and lays it out for the current client area.
  void LoadPic(PictureReader& reader, const std::string& path);
  // The client area (pixels) and the bars' thickness changed.
  void Resize(int width, int height, int vBar, int hBar);
  // F10: every file of `folder` whose name ends in "jpg" (lower case), as full paths, in the
  // folder's order (by name); the box then shows. A missing folder leaves the box empty.
  void KeyF10(const std::string& folder);
  // An entry of the visible box chosen: that picture is loaded.
  void cboPicViewer_Click(PictureReader& reader, std::size_t index);
  // Print: the printer dialog "Select Printer"; the picture on a landscape page at the origin.
  // Cancelling throws the cancel failure.
  void mnuPrint(Printer& printer) const;
};

}  // namespace benchlog

#pragma once
// frmView: the one text viewer of the program, as a model. Every command that shows text puts it
// here: Descriptions, listings, reports, the raw index, a county file. For a Description it also
// switches between the text, the mark's photo and its sketch ("<PID>ph.jpg", "<PID>sk.jpg" beside
// the dataset), and it follows the user's clicks from one Description to the next when several
// are shown in one text. The Qt window only renders this model and forwards the user's acts.
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "platform/dialog_model.hpp"
#include "platform/settings_store.hpp"
#include "platform/ui.hpp"
#include "platform/window_placement.hpp"

namespace benchlog {

struct Session;
struct Platform;

// Tells whether a picture file can be shown: "" when it can, else the failure's text. The Qt
// window decodes the file; without a check a file that exists passes.
using PictureCheck = std::function<std::string(const std::string& path)>;

class frmView : public DialogModel {
 public:
  // The text box: its whole text (CR LF line ends, as shown), visibility, caret (a 0-based
  // character position in txtViewFile) and font size in points.
  std::string txtViewFile;
  bool txtViewFileVisible = true;
  std::size_t SelStart = 0;
  int FontSize = 10;
  std::uint32_t BackColor = 16777215;  // the text box's background, 0x00BBGGRR
  // The image laid over the same area: the picture file on screen, "" when cleared.
  std::string imgPhoto;
  bool imgPhotoVisible = false;

  std::string Caption;
  std::string strFileType;  // "dat", "hcl", "vcl", "txt", "ndx", "rpt": chooses the Save As filter
  int PhotoFlag = 0;        // 1 while the photo is on screen
  std::string PhotoPath, SketchPath;
  int HasPhoto = 0, HasSketch = 0;
  bool mnuViewDescVisible = false, mnuViewPhotoVisible = false, mnuViewSketchVisible = false;
  WindowPlacement placement{kNormal, 0, 0, 8475, 9255};  // twips; the state is applied at every show
  bool centreOnce = false;  // the next show stands centred on the screen at the placement's size
  bool loaded = false;  // the settings were read (at first use) and not yet saved by an unload

  // Where the window's own acts reach the rest of the program: the main window's session (for
  // DatFilePath) and the platform (Ui, settings). Set by ViewForm().
  Session* session = nullptr;
  Platform* platform = nullptr;

  // Window settings of section "frmView": "Windowstate" (0), "Top", "Left" (0), "Height" (8475),
  // "Width" (9255).
  void Load(const SettingsStore& settings);
  // Saves "Windowstate"; in the normal state also "Top" and "Left" when not negative, "Height"
  // and "Width". Then resets as Close() does and hides the Desc and Photo commands.
  void Unload(SettingsStore& settings);

  // Each time the window becomes active: photo and sketch paths from `datFilePath` (the
  // dataset's folder with its separator) and Tag, the Photo and Sketch commands shown where the
  // files exist, Desc hidden, the caret at 0.
  void Activate(const std::string& datFilePath);
  // The text again, with Photo and Sketch where the mark has them; caption "View Description for
  // point " and Tag.
  void mnuViewDesc();
  // The photo over the text (only when the mark has one); caption "View Photo for point " and Tag.
  // A picture that cannot be loaded shows the failure's text and leaves the view as it was.
  void mnuViewPhoto(Ui& ui, const PictureCheck& check = {});
  // The sketch, likewise; the caption is "View Sketch for point" with no PID, and PhotoFlag stays
  // as it was, so that printing treats the sketch as text.
  void mnuViewSketch(Ui& ui, const PictureCheck& check = {});
  // A click in the text (at SelStart), unless Tag is "View listing": the PID of the line after the
  // first CR LF near the click becomes Tag, the caption "Description for " and the PID, and the
  // Photo and Sketch commands follow that mark's files. Texts without PIDs give whatever the
  // slice holds; nothing fails.
  void FollowClick(const std::string& datFilePath);
  // Saves the whole text to a file chosen in the save dialog (filter by strFileType, title
  // "Save file as:"); an existing file is replaced only after "File exists.  Overwrite?" is
  // answered Yes. Cancelling ends it silently; a file that cannot be written shows the failure.
  void mnuFileSaveAs(Ui& ui);
  // Prints what the viewer shows, through the handler the printing layer installed with
  // SetViewerPrint; a cancelled printer dialog ends it silently, another failure shows its text.
  // A viewer without a handler, or not made by ViewForm, is a wiring fault: std::logic_error.
  void mnuPrintDesc(Ui& ui);
  // Esc and Exit: the text again, the picture cleared, Tag empty. The window then hides but keeps
  // its state.
  void Close();

  // The Save As filter for a kind of text; "" for any other kind.
  static std::string SaveAsFilter(const std::string& fileType);

 private:
  void SetPictureCommands(const std::string& folder, const std::string& pid);
  bool ShowPicture(Ui& ui, const std::string& path, const PictureCheck& check);
};

// How the viewer's Print command prints: chosen by what the viewer shows. Installed once when the
// program's commands are registered, since printing lives in a layer above the viewer.
using ViewerPrint = std::function<void(frmView& view, Session& session, Platform& platform)>;
void SetViewerPrint(ViewerPrint print);

// The viewer of the session, tied to the session and the platform its window acts through.
frmView& ViewForm(Session& session, Platform& platform);

}  // namespace benchlog

#pragma once
// frmEdit: the small text editor of the program, as a model. It shows one file either locked for
// reading or open for editing, and since the program's data is in capitals, every letter typed
// comes out as a capital. The text is the file's bytes as they are (code page, lone CRs and LFs),
// so a file saved without a change keeps every byte but its end, which is always one CR LF. The
// Qt window renders this model and forwards every key and menu command to it.
#include <array>
#include <cstddef>
#include <string>

#include "platform/dialog_model.hpp"
#include "platform/settings_store.hpp"
#include "platform/ui.hpp"
#include "platform/window_placement.hpp"
#include "view/dia_replace.hpp"
#include "view/dlg_text.hpp"

namespace benchlog {

struct Session;
struct Platform;

class frmEdit : public DialogModel {
 public:
  static constexpr std::size_t kUndoDepth = 5;

  // The text box: its bytes, lock, and selection (0-based byte positions; a CR LF counts two).
  std::string txtEdit;
  bool Locked = true;
  std::size_t SelStart = 0;
  std::size_t SelLength = 0;

  std::string Caption;
  std::string FileName;           // the file shown, and the one Save writes
  bool editMenusVisible = false;  // Save, Edit, Replace, Bkspc and Undo
  bool ChangesSaved = true;
  std::array<std::string, kUndoDepth> undo;  // undo[0] is entry 1, the most recent
  std::string searchString;  // in capitals
  std::size_t searchPosition = 0;
  WindowPlacement placement{kMaximized, 0, 0, 8340, 10650};  // twips; the state is not saved
  bool loaded = false;
  dlgText findDialog;          // "Find Text"
  diaReplace replaceDialog;    // keeps its last entries between replacements

  Platform* platform = nullptr;  // the Ui and settings the window's own acts go through

  // Section "frmEdit": "Top", "Left" (0), "Height" (8340), "Width" (10650).
  void Load(const SettingsStore& settings);
  void SaveGeometry(SettingsStore& settings) const;

  // Loads a file before the window is shown; the caption becomes its path. A missing file gives
  // "File not found!" and false. `edit` unlocks the text and shows the edit menus. The load counts
  // as a change, so an edited file asks to be saved at closing until it has been saved once.
  bool ViewFile(Ui& ui, const std::string& fName, bool edit);
  // Writes the text to `fName` with exactly one CR LF at its end, then marks the text saved and
  // clears the undo store. A failure shows its text, and the text stays.
  void SaveFile(Ui& ui, const std::string& fName);
  void mnuSaveFile(Ui& ui) { SaveFile(ui, FileName); }

  // Pushes the text on the undo store; the oldest entry is lost.
  void StoreOldText();
  // The undo command: the text of entry 1, unless it is blank.
  void mnuUndo();

  // A key typed in the window, before it takes effect: the text goes on the undo store, and the
  // key that reaches the text box is returned, a lower-case letter as its capital.
  int KeyPress(int keyAscii);
  // Every change of the text box's contents, typed or pasted.
  void TextChanged() { ChangesSaved = false; }

  // Find: asks for a new string through dlgText ("Find Text"); FindNext (F3) goes on with the
  // old one, asking only when there is none. The match is selected as the search position says;
  // a search that finds nothing selects the first characters of the text.
  void mnuSearchFind(Ui& ui);
  void FindNext(Ui& ui);
  // Replace through diaReplace: the trimmed find text, matched exactly, gives way to the trimmed
  // replacement, at its first occurrence or at all of them.
  void mnuSearchReplace(Ui& ui);

  // The clipboard stays with the window: copy and cut give the selected text, paste takes text.
  std::string mnuCopy() const;
  std::string mnuCut();
  void mnuPaste(const std::string& clipboard);
  void mnuHome() { Select(0, 0); }
  void mnuEnd() { Select(txtEdit.size(), 0); }
  // The printer dialog, then the text in Courier New size 10 on portrait pages of 66 lines, and
  // "Printing complete". A cancelled dialog prints nothing; another failure shows its text.
  void mnuPrint(Platform& platform);

  // Close, Exit and the close box: the geometry is saved, and an unlocked text with unsaved
  // changes asks "Save Changes?"; Yes saves it.
  void CloseEditor(Ui& ui, SettingsStore& settings);

 private:
  void Select(std::size_t start, std::size_t length);
  void ReplaceSelection(const std::string& text);
  void Search();
};

// The editor of the session, tied to the platform its window acts through.
frmEdit& EditForm(Session& session, Platform& platform);

// "Street Atlas File" in the Edit and the View menus: the current dataset's Street Atlas file in
// the editor, captioned "Edit Street Atlas File - " and its path, or "File not found!".
void mnuEditSA(Session& session, Platform& platform);

}  // namespace benchlog

#pragma once
// The Qt window of frmEdit: the menus File (Save, Print, Close), Edit (Cut, Copy, Paste), Search
// (Find, Replace), then PageUp, PageDown, Home, End, Bkspc, Undo and Exit on the bar itself, and
// the text box txtEdit filling the client area. It renders the model, hands every typed key to it
// first, and keeps the clipboard and the keys sent to the text box for it.
#include <string>

#include "platform/qt/dialog_registry.hpp"
#include "view/frm_edit.hpp"

class QAction;
class QMenu;
class QMenuBar;
class QPlainTextEdit;

namespace benchlog::qt {

class FrmEditWindow : public ModelDialog {
 public:
  FrmEditWindow(frmEdit& model, QWidget* parent = nullptr);

  void LoadFromModel() override;

  QPlainTextEdit* TextBox() const { return txtEdit_; }
  // The menu command of the given name ("mnuSaveFile", "mnuUndo", ...), nullptr when unknown.
  QAction* Command(const char* name) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* e) override;
  void reject() override;  // Esc
  void closeEvent(QCloseEvent* e) override;

 private:
  void BuildMenus(QMenuBar* bar);
  QAction* AddCommand(QWidget* menu, const char* name, const char* caption, void (FrmEditWindow::*act)());
  void ShowMenus();
  void ShowText();
  void ShowSelection();
  void TakeSelection();
  void SendKey(int key);
  void CloseEditor();
  bool TypedKey(QKeyEvent* key);

  void Save();
  void Print();
  void Cut();
  void Copy();
  void Paste();
  void Find();
  void FindNext();
  void Replace();
  void PageUp() { SendKey(Qt::Key_PageUp); }
  void PageDown() { SendKey(Qt::Key_PageDown); }
  void Home();
  void End();
  void BackSpace() { SendKey(Qt::Key_Backspace); }
  void Undo();

  frmEdit& model_;
  QPlainTextEdit* txtEdit_ = nullptr;
  QMenu* mnuEdit_ = nullptr;
  bool filling_ = false;  // the window is being filled from the model, not edited by the user
  bool placed_ = false;
};

}  // namespace benchlog::qt

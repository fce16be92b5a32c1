#pragma once
// The Qt window of frmView: a menu bar (File with Save As, Print, Exit; then Desc, Photo and
// Sketch on the bar itself), the text box txtViewFile filling the client area and the image
// imgPhoto laid over it, stretched to the same area. It renders the model and forwards every act
// of the user to it.
#include <QPixmap>
#include <string>

#include "platform/qt/dialog_registry.hpp"
#include "session/frm_view.hpp"

class QAction;
class QLabel;
class QMenuBar;
class QPlainTextEdit;

namespace benchlog::qt {

class FrmViewWindow : public ModelDialog {
 public:
  FrmViewWindow(frmView& model, QWidget* parent = nullptr);

  // The whole model onto the window: text, font size, caret, caption, menus, picture.
  void LoadFromModel() override;
  // Everything but the text (which can be long): caption, menus, which of text and picture shows.
  void ShowState();

  QPlainTextEdit* TextBox() const { return txtViewFile_; }
  QLabel* Image() const { return imgPhoto_; }
  QAction* mnuFileSaveAs() const { return mnuFileSaveAs_; }
  QAction* mnuPrintDesc() const { return mnuPrintDesc_; }
  QAction* mnuExit() const { return mnuExit_; }
  QAction* mnuViewDesc() const { return mnuViewDesc_; }
  QAction* mnuViewPhoto() const { return mnuViewPhoto_; }
  QAction* mnuViewSketch() const { return mnuViewSketch_; }

 protected:
  bool event(QEvent* e) override;
  bool eventFilter(QObject* watched, QEvent* e) override;
  void reject() override;  // Esc
  void closeEvent(QCloseEvent* e) override;

 private:
  void BuildMenus(QMenuBar* bar);
  void CloseView();
  void Activated();
  void Clicked();
  void TakeCaret();
  void ApplyState();
  std::string HostDatFilePath() const;
  QString ShownText(int position, int length) const;  // as the widget holds it
  std::string CheckPicture(const std::string& path);

  frmView& model_;
  QPlainTextEdit* txtViewFile_ = nullptr;
  QLabel* imgPhoto_ = nullptr;
  QWidget* client_ = nullptr;
  QAction* mnuFileSaveAs_ = nullptr;
  QAction* mnuPrintDesc_ = nullptr;
  QAction* mnuExit_ = nullptr;
  QAction* mnuViewDesc_ = nullptr;
  QAction* mnuViewPhoto_ = nullptr;
  QAction* mnuViewSketch_ = nullptr;
  std::string shownPicture_;
  QPixmap checkedPixmap_;
  std::string checkedPath_;
  bool filling_ = false;    // the window is being filled from the model, not edited by the user
  bool placed_ = false;  // the saved position and size were applied since the last unload
};

}  // namespace benchlog::qt

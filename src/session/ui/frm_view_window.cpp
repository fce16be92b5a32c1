#include "session/ui/frm_view_window.hpp"

#include <QAction>
#include <QCloseEvent>
#include <QFileInfo>
#include <QFontDatabase>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QVBoxLayout>
#include <algorithm>

#include "session/session.hpp"
#include "platform/platform.hpp"
#include "platform/qt/qt_ui.hpp"
#include "platform/qt/screen_fit.hpp"
#include "session/ui/display_text.hpp"

namespace benchlog::qt {

FrmViewWindow::FrmViewWindow(frmView& model, QWidget* parent) : ModelDialog(parent), model_(model) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* bar = new QMenuBar(this);
  layout->setMenuBar(bar);
  BuildMenus(bar);

  client_ = new QWidget(this);
  layout->addWidget(client_);
  txtViewFile_ = new QPlainTextEdit(client_);
  txtViewFile_->setObjectName("txtViewFile");
  txtViewFile_->setLineWrapMode(QPlainTextEdit::NoWrap);
  imgPhoto_ = new QLabel(client_);
  imgPhoto_->setObjectName("imgPhoto");
  imgPhoto_->setScaledContents(true);  // stretched to the client area; the aspect is not kept
  imgPhoto_->hide();
  client_->installEventFilter(this);
  txtViewFile_->viewport()->installEventFilter(this);

  // Each edit changes only its own bytes of the model, so a keystroke costs the same in a long
  // text as in a short one, and the bytes around it (lone CRs and LFs, the code page's upper
  // half) stay as the file had them. The caret can move before the text is taken, so both take
  // the caret again.
  connect(txtViewFile_->document(), &QTextDocument::contentsChange, this, [this](int position, int removed, int added) {
    if (filling_) return;
    ApplyDisplayEdit(model_.txtViewFile, position, removed, ShownText(position, added));
    TakeCaret();
  });
  connect(txtViewFile_, &QPlainTextEdit::cursorPositionChanged, this, [this] {
    if (!filling_) TakeCaret();
  });
}

void FrmViewWindow::BuildMenus(QMenuBar* bar) {
  QMenu* file = bar->addMenu("&File");
  file->setObjectName("mnuFile");
  mnuFileSaveAs_ = file->addAction("Save As...");
  file->addSeparator();
  mnuPrintDesc_ = file->addAction("Print");
  file->addSeparator();
  mnuExit_ = file->addAction("E&xit");
  mnuViewDesc_ = bar->addAction("&Desc");
  mnuViewPhoto_ = bar->addAction("&Photo");
  mnuViewSketch_ = bar->addAction("&Sketch");
  mnuFileSaveAs_->setObjectName("mnuFileSaveAs");
  mnuPrintDesc_->setObjectName("mnuPrintDesc");
  mnuExit_->setObjectName("mnuExit");
  mnuViewDesc_->setObjectName("mnuViewDesc");
  mnuViewPhoto_->setObjectName("mnuViewPhoto");
  mnuViewSketch_->setObjectName("mnuViewSketch");

  const auto withUi = [this](auto act) {
    return [this, act] {
      if (model_.platform) act(model_.platform->ui);
      ShowState();
    };
  };
  connect(mnuFileSaveAs_, &QAction::triggered, this, withUi([this](Ui& ui) { model_.mnuFileSaveAs(ui); }));
  connect(mnuPrintDesc_, &QAction::triggered, this, withUi([this](Ui& ui) { model_.mnuPrintDesc(ui); }));
  const PictureCheck check = [this](const std::string& path) { return CheckPicture(path); };
  connect(mnuViewPhoto_, &QAction::triggered, this, withUi([this, check](Ui& ui) { model_.mnuViewPhoto(ui, check); }));
  connect(mnuViewSketch_, &QAction::triggered, this,
          withUi([this, check](Ui& ui) { model_.mnuViewSketch(ui, check); }));
  connect(mnuViewDesc_, &QAction::triggered, this, [this] {
    model_.mnuViewDesc();
    ShowState();
  });
  connect(mnuExit_, &QAction::triggered, this, [this] { CloseView(); });
}

QString FrmViewWindow::ShownText(int position, int length) const {
  QTextCursor cursor(txtViewFile_->document());
  const int end = txtViewFile_->document()->characterCount() - 1;  // behind it: the closing separator
  cursor.setPosition(std::min(position, end));
  cursor.setPosition(std::min(position + length, end), QTextCursor::KeepAnchor);
  return cursor.selectedText();
}

std::string FrmViewWindow::HostDatFilePath() const { return model_.session ? model_.session->dataset.DatFilePath : ""; }

// Decodes the picture once: the view shows the same pixmap when the model takes the file.
std::string FrmViewWindow::CheckPicture(const std::string& path) {
  QPixmap pixmap;
  const QString file = QString::fromLocal8Bit(path.c_str());
  if (!QFileInfo(file).isFile()) return "File not found";
  if (!pixmap.load(file)) return "Invalid picture";
  checkedPath_ = path;
  checkedPixmap_ = pixmap;
  return "";
}

void FrmViewWindow::LoadFromModel() {
  if (model_.centreOnce) {  // a one-off layout (the PID list); the next show places the window again
    CentreOnScreen(this, PixelsOfTwips(0, 0, model_.placement.width, model_.placement.height).size());
    model_.centreOnce = false;
    placed_ = false;
  } else if (!placed_) {
    if (model_.platform && !model_.loaded) model_.Load(model_.platform->settings);
    PlaceOnScreen(this, PixelsOfTwips(model_.placement.left, model_.placement.top, model_.placement.width, model_.placement.height));
    placed_ = true;
  }
  ApplyState();
  filling_ = true;
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPointSize(model_.FontSize > 0 ? model_.FontSize : 10);
  txtViewFile_->setFont(font);
  QPalette colors = txtViewFile_->palette();
  colors.setColor(QPalette::Base, qt::ColorOfNumber(model_.BackColor));
  txtViewFile_->setPalette(colors);
  txtViewFile_->setPlainText(ToDisplayText(model_.txtViewFile));
  QTextCursor cursor = txtViewFile_->textCursor();
  cursor.setPosition(DisplayPosition(model_.txtViewFile, model_.SelStart));
  txtViewFile_->setTextCursor(cursor);
  filling_ = false;
  ShowState();
}

void FrmViewWindow::ShowState() {
  setWindowTitle(ToDisplayText(model_.Caption));
  mnuViewDesc_->setVisible(model_.mnuViewDescVisible);
  mnuViewPhoto_->setVisible(model_.mnuViewPhotoVisible);
  mnuViewSketch_->setVisible(model_.mnuViewSketchVisible);
  if (model_.imgPhoto != shownPicture_) {
    if (model_.imgPhoto.empty()) {
      imgPhoto_->clear();
    } else if (model_.imgPhoto == checkedPath_) {
      imgPhoto_->setPixmap(checkedPixmap_);
    } else {
      imgPhoto_->setPixmap(QPixmap(QString::fromLocal8Bit(model_.imgPhoto.c_str())));
    }
    shownPicture_ = model_.imgPhoto;
  }
  txtViewFile_->setVisible(model_.txtViewFileVisible);
  imgPhoto_->setVisible(model_.imgPhotoVisible);
  if (model_.imgPhotoVisible) imgPhoto_->raise();
}

void FrmViewWindow::Activated() {
  model_.Activate(HostDatFilePath());
  filling_ = true;
  QTextCursor cursor = txtViewFile_->textCursor();
  cursor.setPosition(0);
  txtViewFile_->setTextCursor(cursor);
  filling_ = false;
  ShowState();
}

void FrmViewWindow::TakeCaret() {
  model_.SelStart = ModelPosition(model_.txtViewFile, txtViewFile_->textCursor().position());
}

void FrmViewWindow::Clicked() {
  TakeCaret();
  model_.FollowClick(HostDatFilePath());
  ShowState();
}

void FrmViewWindow::CloseView() {
  // Hidden, not unloaded: the next show starts from the state the user left.
  TakePlacement(*this, model_.placement);
  model_.Close();
  ShowState();
  hide();
}

void FrmViewWindow::reject() { CloseView(); }

// The close box unloads the window: its placement is saved, and the next show reads it again.
void FrmViewWindow::closeEvent(QCloseEvent* e) {
  if (model_.platform) {
    TakePlacement(*this, model_.placement);
    model_.Unload(model_.platform->settings);
    placed_ = false;
  } else {
    model_.Close();
  }
  ShowState();
  e->accept();
  QDialog::closeEvent(e);
}

bool FrmViewWindow::event(QEvent* e) {
  if (e->type() == QEvent::WindowActivate) Activated();
  return ModelDialog::event(e);
}

bool FrmViewWindow::eventFilter(QObject* watched, QEvent* e) {
  if (watched == client_ && e->type() == QEvent::Resize) {
    txtViewFile_->setGeometry(client_->rect());
    imgPhoto_->setGeometry(client_->rect());
  } else if (watched == txtViewFile_->viewport() && e->type() == QEvent::MouseButtonRelease) {
    Clicked();
  }
  return ModelDialog::eventFilter(watched, e);
}

// The state a command set (the class views maximise the window) or the one the window was left in.
void FrmViewWindow::ApplyState() {
  const Qt::WindowStates kept = windowState() & ~(Qt::WindowMaximized | Qt::WindowMinimized);
  if (model_.placement.state == kMaximized) setWindowState(kept | Qt::WindowMaximized);
  else if (model_.placement.state == kMinimized) setWindowState(kept | Qt::WindowMinimized);
  else setWindowState(kept);
}

}  // namespace benchlog::qt

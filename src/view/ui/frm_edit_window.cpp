#include "view/ui/frm_edit_window.hpp"

#include <QAction>
#include <QClipboard>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QTextDocument>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/platform.hpp"
#include "platform/qt/screen_fit.hpp"
#include "platform/qt/text_codec.hpp"
#include "session/ui/display_text.hpp"

namespace benchlog::qt {
namespace {

// The character a key types, in the program's code page; 0 when it types none.
int KeyAscii(const QKeyEvent& key) {
  if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) return 13;
  if (key.key() == Qt::Key_Backspace) return 8;
  if (key.text().size() != 1) return 0;
  return static_cast<unsigned char>(FromQt(key.text())[0]);
}

}  // namespace

FrmEditWindow::FrmEditWindow(frmEdit& model, QWidget* parent) : ModelDialog(parent), model_(model) {
  setObjectName("frmEdit");
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* bar = new QMenuBar(this);
  layout->setMenuBar(bar);
  txtEdit_ = new QPlainTextEdit(this);
  txtEdit_->setObjectName("txtEdit");
  txtEdit_->setLineWrapMode(QPlainTextEdit::NoWrap);
  layout->addWidget(txtEdit_);
  BuildMenus(bar);
  txtEdit_->installEventFilter(this);

  // An edit changes only its own bytes of the model, so the bytes around it (lone CRs and LFs,
  // the code page's upper half) stay as the file had them.
  connect(txtEdit_->document(), &QTextDocument::contentsChange, this, [this](int position, int removed, int added) {
    if (filling_) return;
    QTextCursor cursor(txtEdit_->document());
    const int end = txtEdit_->document()->characterCount() - 1;
    cursor.setPosition(std::min(position, end));
    cursor.setPosition(std::min(position + added, end), QTextCursor::KeepAnchor);
    ApplyDisplayEdit(model_.txtEdit, position, removed, cursor.selectedText());
    model_.TextChanged();
  });
  new QShortcut(QKeySequence(Qt::Key_F3), this, [this] { FindNext(); });
}

QAction* FrmEditWindow::AddCommand(QWidget* menu, const char* name, const char* caption, void (FrmEditWindow::*act)()) {
  auto* action = new QAction(caption, menu);
  action->setObjectName(name);
  menu->addAction(action);
  connect(action, &QAction::triggered, this, [this, act] { (this->*act)(); });
  return action;
}

void FrmEditWindow::BuildMenus(QMenuBar* bar) {
  QMenu* file = bar->addMenu("&File");
  file->setObjectName("mnuFile");
  AddCommand(file, "mnuSaveFile", "&Save", &FrmEditWindow::Save);
  file->addSeparator()->setObjectName("mnusep1");
  AddCommand(file, "mnuPrint", "&Print", &FrmEditWindow::Print);
  file->addSeparator();
  AddCommand(file, "mnuCloseEditor", "&Close", &FrmEditWindow::CloseEditor);
  mnuEdit_ = bar->addMenu("&Edit");
  mnuEdit_->setObjectName("mnuEdit");
  AddCommand(mnuEdit_, "mnuCut", "Cu&t", &FrmEditWindow::Cut);
  AddCommand(mnuEdit_, "mnuCopy", "&Copy", &FrmEditWindow::Copy);
  AddCommand(mnuEdit_, "mnuPaste", "&Paste", &FrmEditWindow::Paste);
  QMenu* search = bar->addMenu("&Search");
  search->setObjectName("mnuSearch");
  AddCommand(search, "mnuSearchFind", "&Find", &FrmEditWindow::Find);
  AddCommand(search, "mnuSearchReplace", "&Replace", &FrmEditWindow::Replace);
  AddCommand(bar, "mnuPageUp", "PageUp", &FrmEditWindow::PageUp);
  AddCommand(bar, "mnuPageDown", "PageDown", &FrmEditWindow::PageDown);
  AddCommand(bar, "mnuHome", "&Home", &FrmEditWindow::Home);
  AddCommand(bar, "mnuEnd", "E&nd", &FrmEditWindow::End);
  AddCommand(bar, "mnuBackSpace", "&Bkspc", &FrmEditWindow::BackSpace);
  AddCommand(bar, "mnuUndo", "&Undo", &FrmEditWindow::Undo);
  AddCommand(bar, "mnuExit", "E&xit", &FrmEditWindow::CloseEditor);
}

QAction* FrmEditWindow::Command(const char* name) const { return findChild<QAction*>(name); }

void FrmEditWindow::ShowMenus() {
  setWindowTitle(ToQt(model_.Caption));
  for (const char* name : {"mnuSaveFile", "mnuSearchReplace", "mnuBackSpace", "mnuUndo"})
    Command(name)->setVisible(model_.editMenusVisible);
  mnuEdit_->menuAction()->setVisible(model_.editMenusVisible);
  txtEdit_->setReadOnly(model_.Locked);
}

void FrmEditWindow::LoadFromModel() {
  if (!placed_) {
    if (model_.platform && !model_.loaded) model_.Load(model_.platform->settings);
    const WindowPlacement& p = model_.placement;
    PlaceOnScreen(this, PixelsOfTwips(p.left, p.top, p.width, p.height));
    placed_ = true;
  }
  if (model_.placement.state == kMaximized) setWindowState(windowState() | Qt::WindowMaximized);
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPointSize(10);
  txtEdit_->setFont(font);
  ShowMenus();
  ShowText();
}

void FrmEditWindow::ShowText() {
  filling_ = true;
  txtEdit_->setPlainText(ToDisplayText(model_.txtEdit));
  filling_ = false;
  ShowSelection();
}

void FrmEditWindow::ShowSelection() {
  QTextCursor cursor = txtEdit_->textCursor();
  cursor.setPosition(DisplayPosition(model_.txtEdit, model_.SelStart));
  cursor.setPosition(DisplayPosition(model_.txtEdit, model_.SelStart + model_.SelLength), QTextCursor::KeepAnchor);
  txtEdit_->setTextCursor(cursor);
}

void FrmEditWindow::TakeSelection() {
  const QTextCursor cursor = txtEdit_->textCursor();
  model_.SelStart = ModelPosition(model_.txtEdit, cursor.selectionStart());
  model_.SelLength = ModelPosition(model_.txtEdit, cursor.selectionEnd()) - model_.SelStart;
}

// Every key that types a character reaches the model first: it keeps the text for undo and turns
// a small letter into a capital, which is then typed in place of the key.
bool FrmEditWindow::TypedKey(QKeyEvent* key) {
  const int typed = KeyAscii(*key);
  if (typed == 0) return false;
  const int passed = model_.KeyPress(typed);
  if (passed == typed || model_.Locked) return false;
  txtEdit_->insertPlainText(ToQt(std::string(1, static_cast<char>(passed))));
  return true;
}

bool FrmEditWindow::eventFilter(QObject* watched, QEvent* e) {
  if (watched == txtEdit_ && e->type() == QEvent::KeyPress) return TypedKey(static_cast<QKeyEvent*>(e));
  return ModelDialog::eventFilter(watched, e);
}

void FrmEditWindow::SendKey(int key) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, key == Qt::Key_Backspace ? QString("\b") : QString());
  QCoreApplication::sendEvent(txtEdit_, &press);
  QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
  QCoreApplication::sendEvent(txtEdit_, &release);
}

void FrmEditWindow::Save() {
  if (model_.platform) model_.mnuSaveFile(model_.platform->ui);
}

void FrmEditWindow::Print() {
  if (model_.platform) model_.mnuPrint(*model_.platform);
}

void FrmEditWindow::Copy() {
  TakeSelection();
  QGuiApplication::clipboard()->setText(ToDisplayText(model_.mnuCopy()));
}

void FrmEditWindow::Cut() {
  TakeSelection();
  QGuiApplication::clipboard()->setText(ToDisplayText(model_.mnuCut()));
  ShowText();
}

// Text from other programs ends its lines in LF or CR LF; the editor's text in CR LF.
void FrmEditWindow::Paste() {
  TakeSelection();
  QString text = QGuiApplication::clipboard()->text();
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  model_.mnuPaste(FromDisplayText(text));
  ShowText();
}

void FrmEditWindow::Find() {
  if (!model_.platform) return;
  model_.mnuSearchFind(model_.platform->ui);
  ShowSelection();
}

void FrmEditWindow::FindNext() {
  if (!model_.platform) return;
  model_.FindNext(model_.platform->ui);
  ShowSelection();
}

void FrmEditWindow::Replace() {
  if (!model_.platform) return;
  const std::string before = model_.txtEdit;
  model_.mnuSearchReplace(model_.platform->ui);
  if (model_.txtEdit != before) ShowText();
}

void FrmEditWindow::Home() {
  model_.mnuHome();
  ShowSelection();
}

void FrmEditWindow::End() {
  model_.mnuEnd();
  ShowSelection();
}

void FrmEditWindow::Undo() {
  const std::string before = model_.txtEdit;
  model_.mnuUndo();
  if (model_.txtEdit != before) ShowText();
}

void FrmEditWindow::CloseEditor() {
  TakePlacement(*this, model_.placement);
  if (model_.platform) model_.CloseEditor(model_.platform->ui, model_.platform->settings);
  hide();
  done(Accepted);
}

void FrmEditWindow::reject() { CloseEditor(); }

void FrmEditWindow::closeEvent(QCloseEvent* e) {
  CloseEditor();
  e->accept();
}

}  // namespace benchlog::qt

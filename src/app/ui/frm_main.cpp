#include "app/ui/frm_main.hpp"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>

#include "app/main_window.hpp"
#include "app/menu_tree.hpp"
#include "platform/qt/qt_ui.hpp"
#include "platform/qt/text_codec.hpp"
#include "platform/qt/screen_fit.hpp"

namespace benchlog::qt {

FrmMain::FrmMain(Session& session, Platform& platform, const CommandTable& commands)
    : session_(session), platform_(platform), commands_(commands) {
  setObjectName("frmMain");
  BuildMenus();
  // The window sees keys before its controls do.
  qApp->installEventFilter(this);
  auto* help = new QAction(this);
  help->setShortcut(Qt::Key_F1);
  help->setShortcutContext(Qt::ApplicationShortcut);
  connect(help, &QAction::triggered, this, [this] { RunCommand("mnuBenchlogHlp"); });
  addAction(help);
  SyncFromSession();
}

void FrmMain::BuildMenus() {
  for (const auto& entry : MainMenuTree()) {
    QMenu* parent = entry.parent.empty() ? nullptr : menus_.at(entry.parent);
    const QString caption = ToQt(entry.caption);
    if (entry.kind == MenuKind::TopLevel || entry.kind == MenuKind::Submenu) {
      QMenu* menu = parent ? parent->addMenu(caption) : menuBar()->addMenu(caption);
      menu->setObjectName(ToQt(entry.name));
      menu->menuAction()->setObjectName(ToQt(entry.name));
      menus_[entry.name] = menu;
      actions_[entry.name] = menu->menuAction();
      continue;
    }
    QAction* action = entry.kind == MenuKind::Separator ? parent->addSeparator() : parent->addAction(caption);
    action->setObjectName(ToQt(entry.name));
    actions_[entry.name] = action;
    if (entry.kind == MenuKind::Command)
      connect(action, &QAction::triggered, this, [this, name = entry.name] { RunCommand(name); });
  }
}

QAction* FrmMain::Action(const std::string& name) const {
  const auto found = actions_.find(name);
  return found == actions_.end() ? nullptr : found->second;
}

void FrmMain::RunCommand(const std::string& name) {
  commands_.Run(name, session_, platform_);
  SyncFromSession();
  if (session_.shell.quitRequested) close();
}

void FrmMain::SyncFromSession() {
  for (const auto& [name, state] : session_.menu.Items()) {
    QAction* action = Action(name);
    if (!action) continue;
    if (!action->isSeparator()) action->setText(ToQt(state.caption));
    action->setVisible(state.visible);
    action->setEnabled(state.enabled);
    action->setCheckable(state.checked);
    action->setChecked(state.checked);
  }
  setWindowTitle(ToQt(session_.shell.caption));
  QPalette colors = palette();
  colors.setColor(QPalette::Window, ColorOfNumber(session_.shell.backColor));
  colors.setColor(QPalette::WindowText, ColorOfNumber(session_.shell.foreColor));
  setPalette(colors);
  setAutoFillBackground(true);
}

void FrmMain::ApplyPlacement(const WindowPlacement& placement) {
  PlaceOnScreen(this, PixelsOfTwips(placement.left, placement.top, placement.width, placement.height));
  if (placement.state == kMaximized) setWindowState(Qt::WindowMaximized);
  else if (placement.state == kMinimized) setWindowState(Qt::WindowMinimized);
}

WindowPlacement FrmMain::CurrentPlacement() const {
  WindowPlacement placement;
  placement.state = isMaximized() ? kMaximized : isMinimized() ? kMinimized : kNormal;
  placement.left = pos().x() * kTwipsPerPixel;
  placement.top = pos().y() * kTwipsPerPixel;
  placement.width = width() * kTwipsPerPixel;
  placement.height = height() * kTwipsPerPixel;
  return placement;
}

bool FrmMain::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && isActiveWindow() && !QApplication::activePopupWidget()) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_F10) {
      // The only way to the position search in text.
      session_.menu["mnuLatLoninTxt"].visible = true;
      SyncFromSession();
      return true;
    }
    if (key->key() == Qt::Key_Escape) {
      // Esc ends the program at once, with no closing step and nothing saved.
      endWithoutSaving_ = true;
      close();
      return true;
    }
  }
  return QMainWindow::eventFilter(watched, event);
}

void FrmMain::closeEvent(QCloseEvent* event) {
  if (!endWithoutSaving_) SaveMainWindowPlacement(platform_.settings, CurrentPlacement());
  event->accept();
  // No other window outlives the main window.
  QApplication::closeAllWindows();
  QApplication::quit();
}

}  // namespace benchlog::qt

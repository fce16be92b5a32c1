#pragma once
// frmMain: the main window with the program's one menu tree. Its menu entries only run commands
// of the command table; after each command the window shows the session's menu state, caption and
// colours again.
#include <QMainWindow>
#include <map>

#include "session/command_table.hpp"
#include "session/session.hpp"
#include "platform/platform.hpp"
#include "platform/window_placement.hpp"

class QAction;
class QMenu;

namespace benchlog::qt {

class FrmMain final : public QMainWindow {
 public:
  FrmMain(Session& session, Platform& platform, const CommandTable& commands);

  // Position, size and state as the load step read them.
  void ApplyPlacement(const WindowPlacement& placement);
  WindowPlacement CurrentPlacement() const;
  void RunCommand(const std::string& name);
  void SyncFromSession();
  QAction* Action(const std::string& name) const;

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildMenus();

  Session& session_;
  Platform& platform_;
  const CommandTable& commands_;
  std::map<std::string, QAction*> actions_;
  std::map<std::string, QMenu*> menus_;
  bool endWithoutSaving_ = false;
};

}  // namespace benchlog::qt

#include "platform/qt/qt_shell.hpp"

#include <QDesktopServices>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include "platform/qt/text_codec.hpp"

namespace benchlog::qt {

bool QtShell::OpenWithSystem(const std::string& path) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(ToQt(path)));
}

bool QtShell::MoveToTrash(const std::string& path) { return QFile::moveToTrash(ToQt(path)); }

bool QtShell::RunSystemInformation() {
  // The desktops' own system information tools, the first one installed.
  for (const char* tool : {"hardinfo", "kinfocenter", "gnome-system-monitor", "xfce4-taskmanager"}) {
    const QString program = QStandardPaths::findExecutable(tool);
    if (!program.isEmpty() && QProcess::startDetached(program, {})) return true;
  }
  return false;
}

}  // namespace benchlog::qt

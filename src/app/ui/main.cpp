// Benchlog's start: one instance only, the main window loaded, the splash for a while, then the
// main window and its menu.
#include <QApplication>
#include <QStandardPaths>
#include <cstring>
#include <iostream>
#include <memory>

#include "app/command_registry.hpp"
#include "app/demo_dataset.hpp"
#include "app/frm_about.hpp"
#include "app/main_window.hpp"
#include "app/program_folder.hpp"
#include "app/ui/about_windows.hpp"
#include "app/ui/all_dialogs.hpp"
#include "app/ui/frm_main.hpp"
#include "platform/qt/progress_window.hpp"
#include "platform/qt/qt_database.hpp"
#include "platform/qt/qt_http_transport.hpp"
#include "platform/qt/qt_picture_reader.hpp"
#include "platform/qt/qt_printer.hpp"
#include "platform/qt/qt_settings_store.hpp"
#include "platform/qt/qt_shell.hpp"
#include "platform/qt/qt_ui.hpp"
#include "platform/qt/single_instance.hpp"
#include "platform/qt/text_codec.hpp"

using namespace benchlog;

int main(int argc, char** argv) {
  if (argc == 2 && std::strcmp(argv[1], "--version") == 0) {
    std::cout << VersionCaption() << '\n';
    return 0;
  }
  QApplication app(argc, argv);
  QApplication::setApplicationName(kAppTitle);
  QApplication::setQuitOnLastWindowClosed(false);

  qt::QtUi ui;
  qt::SingleInstance instance;
  if (!instance.IsFirst()) {
    ui.MsgBox("Previous instance already running!");
    return 0;
  }

  qt::QtSettingsStore settings;
  SystemClock clock;
  qt::QtShell shell;
  Progress progress;
  const std::string appPath =
      ChooseProgramFolder(qt::FromQt(QApplication::applicationDirPath()),
                          qt::FromQt(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)));
  Platform platform{ui, settings, clock, shell, progress, AppPaths{appPath, appPath + "/"}};
  qt::QtHttpTransport transport(settings);
  platform.http = &transport;
  qt::QtDatabase database;
  platform.database = &database;
  qt::QtPictureReader pictures;
  platform.pictures = &pictures;

  const QString demoFolder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + "/demo";
  PrepareDemoDataset(settings, appPath + "/samples", qt::FromQt(demoFolder));

  Session session;
  const CommandTable commands = BuildCommandTable();
  qt::RegisterAllDialogs(platform);

  // Load step: the window is made and filled but not shown yet.
  WindowPlacement placement;
  auto frmMain = std::make_unique<qt::FrmMain>(session, platform, commands);
  ui.SetOwner(frmMain.get());
  qt::QtPrinter printer(frmMain.get());
  platform.printer = &printer;
  qt::ProgressWindow dlgProcessing(progress, frmMain.get());
  if (!LoadMainWindow(session, platform, placement)) return 0;
  frmMain->SyncFromSession();

  FrmOCOSplash splashModel;
  qt::FrmOCOSplashWindow splash(splashModel);
  splash.show();
  splash.repaint();
  QApplication::processEvents();
  // The desktop's paint requests are served during the wait; the user's input waits for the main window.
  WaitForSplash(clock, SplashSeconds(settings), [] { QApplication::processEvents(QEventLoop::ExcludeUserInputEvents); });
  splash.close();

  frmMain->ApplyPlacement(placement);
  frmMain->show();
  return QApplication::exec();
}

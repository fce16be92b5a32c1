#pragma once
// The platform services a command uses, bundled, and the program's own folders.
#include <string>

#include "platform/clock.hpp"
#include "platform/database.hpp"
#include "platform/http_transport.hpp"
#include "platform/picture_reader.hpp"
#include "platform/printer.hpp"
#include "platform/progress.hpp"
#include "platform/settings_store.hpp"
#include "platform/shell.hpp"
#include "platform/ui.hpp"

namespace benchlog {

struct AppPaths {
  std::string appPath;      // App.Path: the program's folder (the executable's, or the user's data folder for an
                            // installed program), without a last separator
  std::string supportPath;  // the folder of the support files, ending in a separator
};

struct Platform {
  Ui& ui;
  SettingsStore& settings;
  Clock& clock;
  Shell& shell;
  Progress& dlgProcessing;
  AppPaths paths;
  HttpTransport* http = nullptr;  // Inet1: the web service's transfer object; set by the program and the web tests
  Database* database = nullptr;   // the export's database engine; set by the program and the export tests
  Printer* printer = nullptr;      // set by the program and the printing tests
  PictureReader* pictures = nullptr;  // decodes map images and photos; set by the program and the picture tests
};

}  // namespace benchlog

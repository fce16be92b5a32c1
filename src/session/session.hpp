#pragma once
// What the main window owns for the whole run, split by owner: the current dataset and its index,
// the export's output names, the shell's window state, the menu state, the one-instance windows,
// the configuration and the support files. Every menu command works on a Session (or the part of
// it that it needs) and a Platform.
#include <cstdint>
#include <string>
#include <vector>

#include "session/configuration.hpp"
#include "session/forms.hpp"
#include "session/mark_index.hpp"
#include "session/menu_state.hpp"
#include "support_files/support_files.hpp"

namespace benchlog {

// The current dataset: its path, its folder and its index.
struct DatasetState {
  std::string DatFile;      // full path of the current dataset, in lower case; empty when none
  std::string DatFilePath;  // its folder, with the last separator
  std::string IndexFile;    // the ".ndx" path in App.Path
  MarkIndex markIndex;
};

// The files the export and the listings write beside the dataset, and the last output names.
struct ExportOutputs {
  std::string ErrFile, HclFile, VclFile, MsfFile, SA6File;
  std::string OutFilePath, strDBName, GleFile;
};

// The main window's own state: caption, colours, recent files, the map, and the choices the web
// commands remember between runs of a command.
struct ShellState {
  std::string caption;
  std::uint32_t foreColor = 0;
  std::uint32_t backColor = 16777215;
  std::vector<std::string> MRUList;  // most recent first, at most 8
  std::string CtyFile;               // the county file last opened
  bool mapLoaded = false;
  std::string StateTxt, County;
  bool quitRequested = false;  // set by a command that ends the program
};

struct Session {
  DatasetState dataset;
  ExportOutputs outputs;
  ShellState shell;
  MenuState menu;
  Forms forms;
  Configuration config;
  SupportFiles supportFiles;
};

}  // namespace benchlog

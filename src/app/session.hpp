#pragma once
// What the main window owns for the whole run: the current dataset and its derived paths, the
// index, the recent files, the menu state and the one-instance windows. Every menu command works
// on a Session and a Platform.
#include <cstdint>
#include <string>
#include <vector>

#include "app/configuration.hpp"
#include "app/forms.hpp"
#include "app/menu_state.hpp"
#include "dataset/mark_index.hpp"

namespace benchlog {

struct Session {
  std::string DatFile;      // full path of the current dataset, in lower case; empty when none
  std::string DatFilePath;  // its folder, with the last separator
  std::string CtyFile;
  std::string ErrFile, HclFile, VclFile, MsfFile, SA6File;
  std::string IndexFile;  // the ".ndx" path in App.Path
  std::string OutFilePath, strDBName, GleFile;
  MarkIndex markIndex;
  std::vector<std::string> MRUList;  // most recent first, at most 8

  Configuration config;
  MenuState menu;
  std::string caption;  // the main window's caption
  std::uint32_t foreColor = 0;
  std::uint32_t backColor = 16777215;
  bool mapLoaded = false;
  std::string StateTxt, County;

  Forms forms;
  bool quitRequested = false;  // set by a command that ends the program
};

}  // namespace benchlog

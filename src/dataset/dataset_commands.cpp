#include "dataset/dataset_commands.hpp"

#include "dataset/build_mark_index.hpp"
#include "dataset/dataset_paths.hpp"

namespace benchlog {

void mnuReindex(Session& session, Platform& platform) {
  if (session.DatFile.empty()) {
    platform.ui.MsgBox("No mkdata file open!");
    return;
  }
  if (session.IndexFile.empty()) session.IndexFile = IndexPathFor(platform.paths.appPath, session.DatFile);
  BuildMarkIndexBehindProgress("Creating Index", session.DatFile, session.IndexFile, session.markIndex, platform);
  platform.ui.MsgBox("Index file created.");
}

void RegisterDatasetCommands(CommandTable& table) { table.Register("mnuReindex", mnuReindex); }

}  // namespace benchlog

#include "dataset/dataset_commands.hpp"

#include "common/files.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset/dataset_paths.hpp"

namespace benchlog {

void mnuReindex(Session& session, Platform& platform) {
  if (session.DatFile.empty()) {
    platform.ui.MsgBox("No mkdata file open!");
    return;
  }
  if (session.IndexFile.empty()) session.IndexFile = IndexPathFor(platform.paths.appPath, session.DatFile);
  Progress& progress = platform.dlgProcessing;
  progress.lblProcessing = "Creating Index";
  progress.lblInfo = "Please wait...";
  progress.max = static_cast<int>(FileLength(session.DatFile) / 5000);
  progress.value = 1;
  progress.Show();
  platform.ui.DoEvents();
  BuildMarkIndex(session.DatFile, session.IndexFile, session.markIndex, platform);
  progress.Hide();
  platform.ui.MsgBox("Index file created.");
}

void RegisterDatasetCommands(CommandTable& table) { table.Register("mnuReindex", mnuReindex); }

}  // namespace benchlog

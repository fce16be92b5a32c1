#include "dataset/dataset_commands.hpp"

#include "dataset/build_mark_index.hpp"
#include "session/dataset_paths.hpp"

namespace benchlog {

void mnuReindex(Session& session, Platform& platform) {
  if (session.dataset.DatFile.empty()) {
    platform.ui.MsgBox("No mkdata file open!");
    return;
  }
  if (session.dataset.IndexFile.empty()) session.dataset.IndexFile = IndexPathFor(platform.paths.appPath, session.dataset.DatFile);
  BuildMarkIndexBehindProgress("Creating Index", session.dataset.DatFile, session.dataset.IndexFile, session.dataset.markIndex, platform);
  platform.ui.MsgBox("Index file created.");
}

}  // namespace benchlog

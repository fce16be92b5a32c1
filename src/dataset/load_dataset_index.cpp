#include "dataset/load_dataset_index.hpp"

#include <stdexcept>

#include "common/files.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset/dataset_paths.hpp"
#include "dataset/index_record.hpp"

namespace benchlog {
namespace {

// The sentinel stands one element below the loaded array's upper bound. An index with no room
// for one (an empty or cut-off file from a build that was broken off) counts as stale too.
bool IndexIsStale(const MarkIndex& markIndex, std::uint64_t datasetLength) {
  if (markIndex.Size() < 2) return true;
  return RecordOffset(markIndex[markIndex.Size() - 2]) != datasetLength;
}

void EnableListingCommands(Session& session) {
  session.menu["mnuViewHcl"].enabled = FileExists(session.HclFile);
  session.menu["mnuViewVcl"].enabled = FileExists(session.VclFile);
  session.menu["mnuViewError"].enabled = FileExists(session.ErrFile);
}

}  // namespace

bool LoadDatasetIndex(Session& session, Platform& platform) {
  try {
    SetDerivedPaths(session, platform.paths.appPath);
    bool madeNew = false;
    if (FileExists(session.IndexFile) && FileExists(session.DatFile)) {
      LoadIndexFile(session.IndexFile, session.markIndex);
      if (IndexIsStale(session.markIndex, FileLength(session.DatFile))) {
        BuildMarkIndex(session.DatFile, session.IndexFile, session.markIndex, platform);
        platform.dlgProcessing.Hide();
        platform.ui.MsgBox("Index file created.");
        madeNew = true;
      }
    } else if (!FileExists(session.DatFile)) {
      return false;
    } else {
      BuildMarkIndexBehindProgress("Creating index...", session.DatFile, session.IndexFile, session.markIndex,
                                   platform);
      platform.ui.MsgBox("Index file created.");
      madeNew = true;
    }
    session.caption = session.DatFile;
    EnableListingCommands(session);
    return madeNew;
  } catch (const std::exception& failure) {
    platform.dlgProcessing.Hide();
    platform.ui.MsgBox(failure.what(), MsgButtons::Ok, MsgIcon::Critical);
    return false;
  }
}

}  // namespace benchlog

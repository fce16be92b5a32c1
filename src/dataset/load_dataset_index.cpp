#include "dataset/load_dataset_index.hpp"

#include "common/files.hpp"
#include "common/runtime_failure.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset/dataset_size_limit.hpp"
#include "session/dataset_paths.hpp"
#include "session/index_record.hpp"

namespace benchlog {
namespace {

// The sentinel stands one element below the loaded array's upper bound. An index with no room
// for one (an empty or cut-off file from a build that was broken off) counts as stale too.
bool IndexIsStale(const MarkIndex& markIndex, std::uint64_t datasetLength) {
  if (markIndex.Size() < 2) return true;
  return RecordOffset(markIndex[markIndex.Size() - 2]) != datasetLength;
}

void EnableListingCommands(Session& session) {
  session.menu["mnuViewHcl"].enabled = FileExists(session.outputs.HclFile);
  session.menu["mnuViewVcl"].enabled = FileExists(session.outputs.VclFile);
  session.menu["mnuViewError"].enabled = FileExists(session.outputs.ErrFile);
}

void WarnIfOversize(const std::string& datasetPath, Platform& platform) {
  const std::uint64_t length = FileLength(datasetPath);
  if (!FitsSizeLimit(length))
    platform.ui.MsgBox(OversizeDatasetMessage(datasetPath, length), MsgButtons::Ok, MsgIcon::Exclamation, "Dataset too large");
}

}  // namespace

bool LoadDatasetIndex(Session& session, Platform& platform) {
  try {
    SetDerivedPaths(session, platform.paths.appPath);
    bool madeNew = false;
    if (FileExists(session.dataset.IndexFile) && FileExists(session.dataset.DatFile)) {
      LoadIndexFile(session.dataset.IndexFile, session.dataset.markIndex);
      if (IndexIsStale(session.dataset.markIndex, FileLength(session.dataset.DatFile))) {
        BuildMarkIndex(session.dataset.DatFile, session.dataset.IndexFile, session.dataset.markIndex, platform);
        platform.dlgProcessing.Hide();
        platform.ui.MsgBox("Index file created.");
        madeNew = true;
      }
    } else if (!FileExists(session.dataset.DatFile)) {
      return false;
    } else {
      BuildMarkIndexBehindProgress("Creating index...", session.dataset.DatFile, session.dataset.IndexFile, session.dataset.markIndex,
                                   platform);
      platform.ui.MsgBox("Index file created.");
      madeNew = true;
    }
    session.shell.caption = session.dataset.DatFile;
    EnableListingCommands(session);
    WarnIfOversize(session.dataset.DatFile, platform);
    return madeNew;
  } catch (const RuntimeFailure& failure) {
    platform.dlgProcessing.Hide();
    platform.ui.MsgBox(failure.description, MsgButtons::Ok, MsgIcon::Critical);
    return false;
  }
}

}  // namespace benchlog

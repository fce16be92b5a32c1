#pragma once
// Opening a dataset's index: called whenever a dataset has been chosen (at start, by the open
// command and by a recent-file entry).
#include "session/session.hpp"
#include "platform/platform.hpp"

namespace benchlog {

// Takes session.dataset.DatFile, sets the derived paths and session.dataset.IndexFile, then:
//  - index and dataset exist: loads the index; when the length in its sentinel differs from the
//    dataset's length (or the index holds no sentinel at all), rebuilds it with no progress
//    dialog on screen and shows "Index file created.";
//  - no dataset: returns false at once, leaving caption and menus as they were;
//  - a dataset with no index: builds it behind the progress dialog ("Creating index...") and
//    shows "Index file created.".
// Then sets session.shell.caption to the dataset path and enables "mnuViewHcl", "mnuViewVcl" and
// "mnuViewError" exactly when the ".hcl", ".vcl" and ".err" files exist, and warns in a box when
// the dataset is past the size limit (OversizeDatasetMessage).
// Returns true when it made a new index. A failure is shown in a critical box and gives false.
bool LoadDatasetIndex(Session& session, Platform& platform);

}  // namespace benchlog

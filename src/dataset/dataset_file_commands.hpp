#pragma once
// The commands that work on the dataset as a file: Compress, New, Combine, Delete Descriptions and
// the File Index view. Each one that changes the dataset ends with compression and a build of the
// index, so the dataset is consistent again when it returns.
#include "platform/platform.hpp"
#include "session/session.hpp"

namespace benchlog {

void mnuCompDatFile(Session& session, Platform& platform);
void mnuFileNew(Session& session, Platform& platform);
void mnuCombineDat(Session& session, Platform& platform);
void mnuDelDesc(Session& session, Platform& platform);
void mnuViewFileIndex(Session& session, Platform& platform);

}  // namespace benchlog

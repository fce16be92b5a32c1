#pragma once
// The main window's own commands: opening a dataset, the recent files, the colours, help, about
// and exit.
#include <string>

#include "platform/platform.hpp"
#include "session/session.hpp"

namespace benchlog {

void mnuOpenDat(Session& session, Platform& platform);
// Shows a county file in the viewer, without blocking.
void mnuOpenCounty(Session& session, Platform& platform);
// Recent-file entry n (1 to 8).
void mnuFileMRUItem_Click(Session& session, Platform& platform, int n);
void mnuSetBackColor(Session& session, Platform& platform);
void mnuSetForColor(Session& session, Platform& platform);
void mnuBenchlogHlp(Session& session, Platform& platform);
void mnuHelpAbout(Session& session, Platform& platform);
void mnuExit(Session& session, Platform& platform);

// Makes `path` the current dataset: DatFile (lower case), the recent files, DatFilePath and the
// settings "LastDatFullName", "LastDatDirectory" and "PhotoDir"; then loads its index.
void OpenDataset(Session& session, Platform& platform, const std::string& path);

}  // namespace benchlog

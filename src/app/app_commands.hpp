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
// settings "LastDatFullName", "LastDatDirectory" and "PhotoDir"; offers to convert a dataset with
// LF line ends (OfferDatasetLineEndConversion); then loads its index.
void OpenDataset(Session& session, Platform& platform, const std::string& path);

// When the dataset's lines end in LF alone, asks whether to convert it to CR LF and does so on
// Yes; on No the dataset opens as it is and the commands that would rewrite it refuse.
void OfferDatasetLineEndConversion(const std::string& datasetPath, Platform& platform);

}  // namespace benchlog

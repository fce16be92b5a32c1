#pragma once
// The export's windows, registered with the Qt Ui at start.
namespace benchlog {

void RegisterExportDialogs();

}  // namespace benchlog

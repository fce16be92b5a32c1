#pragma once
// The export's menu commands: Export, and viewing the horizontal and vertical listings.
#include "platform/platform.hpp"
#include "session/session.hpp"

namespace benchlog {

// Export: with a dataset open, asks for the options (frmOutputOptions), the marks (all, or those
// picked in frmSelectPoints), the database's columns (frmCDT, when the database is ticked) and
// the output name ("Choose Output File Name"), then runs ExportFiles and shows its error text in
// a box titled "Export Files". Without a dataset: "No mkdata file open!". Cancelling anywhere
// ends the command; so do run-time failures, without a report.
void mnuExport(Session& session, Platform& platform);

// The last horizontal listing (session.outputs.HclFile) in the viewer at font size 8, captioned
// "Hcl File - " and the path; "Hcl file not found!" when it is missing.
void mnuViewHcl(Session& session, Platform& platform);
// The same for the vertical listing (session.outputs.VclFile), "Vcl File - "; "File not found!".
void mnuViewVcl(Session& session, Platform& platform);

}  // namespace benchlog

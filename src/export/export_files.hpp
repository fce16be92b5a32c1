#pragma once
// ExportFiles: the export's one pass over a text of Descriptions into the outputs ticked in
// frmOutputOptions (read as the dialogs stand when it runs).
#include <string>
#include "session/session.hpp"
#include "dataset/text_blocks.hpp"
#include "platform/platform.hpp"

namespace benchlog {

// Writes the outputs of the Descriptions in `strMkData` (CR LF lines, read from its start) under
// the names formed from `OutFileName` (export_names.hpp), which also become the session's HclFile,
// VclFile, SA6File and ErrFile. In order: the zone's line is looked up by the first 5 characters of
// cboProjZone, the progress dialog shows "Processing " and "Please wait...", the ticked outputs are
// opened (an existing file stays until its new text replaces it whole; a read-only one sets `ErrMsg` to "<path> exists and is
// read-only!", closes what was opened, hides the dialog and ends the export), the Descriptions are
// counted for the progress bar, each is parsed (ParsedMarks) and its working values computed and
// written to every output, the outputs are finished (the script's groups and legend, the listings
// sorted and headed, the database closed), the dialog is hidden and "Processing
// complete!" is shown in a box titled "Create File(s)". `ErrMsg` is emptied on entry. A file that
// cannot be written (WriteFailure) ends the export with the failure's text in `ErrMsg`; any other
// run-time failure (a coordinate text too wide for its column, a scale of the script that is no
// number, a database table without columns) ends it without a report. Either way the old text
// outputs stay as they were, while the database keeps the rows added before the end (its old file
// is deleted when it is opened). Other exceptions reach the caller.
void ExportFiles(Session& session, Platform& platform, TextBlocks& strMkData, const std::string& OutFileName,
                 std::string& ErrMsg);

}  // namespace benchlog

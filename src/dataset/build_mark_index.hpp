#pragma once
// Making the index of a dataset: BuildMarkIndex scans the dataset and writes the ".ndx" file;
// LoadIndexFile reads one back.
//
// The two fillings lay out the array differently, and readers rely on both layouts:
//   loaded, D Descriptions: 0..D-1 the records, D the sentinel, D+1 empty (behind the last CR LF);
//   built:  0..D-2 the records of all but the last Description, D-1 empty, D the last record,
//           D+1 the sentinel.
#include <string>

#include "session/mark_index.hpp"
#include "platform/platform.hpp"

namespace benchlog {

// Scans the dataset line by line, fills `markIndex` (cleared first) and writes every record, then
// the sentinel with the dataset's length, to a work file that replaces `indexPath` when it is whole. A record's PhotoFlag and
// SketchFlag tell whether "<PID>ph.jpg" and "<PID>sk.jpg" lie in the dataset's folder. Advances
// the progress bar one step per Description while its value is below its maximum, and hides the
// dialog at the end; a caller that wants a progress display shows it first.
// A failure (a missing dataset, an unwritable index) is trapped here: the files are closed, the
// dialog hidden and the failure's text shown in a critical box titled "Create Mark Index";
// `markIndex` keeps what was made so far, the ".ndx" file stays as it was (its sentinel then no
// longer matches a changed dataset, so the next opening rebuilds it), and false is returned.
bool BuildMarkIndex(const std::string& datasetPath, const std::string& indexPath, MarkIndex& markIndex,
                    Platform& platform);

// The usual way of building behind the progress dialog: its first label becomes `label`, its second
// "Please wait...", the bar runs from 1 to the dataset's length / 5000; the dialog is shown, pending
// events run, the index is built and the dialog hidden. Throws RuntimeFailure "File not found"
// when the dataset is missing (before anything is shown).
void BuildMarkIndexBehindProgress(const std::string& label, const std::string& datasetPath,
                                  const std::string& indexPath, MarkIndex& markIndex, Platform& platform);

// Reads the whole ".ndx" file and splits it at CR LF into `markIndex`, replacing what was there.
// Throws RuntimeFailure "File not found" when the file cannot be read.
void LoadIndexFile(const std::string& indexPath, MarkIndex& markIndex);

}  // namespace benchlog

#pragma once
// Squeezing the dataset: rewriting it without the blank lines that deleted Descriptions left.
#include <string>

#include "platform/platform.hpp"

namespace benchlog {

// Rewrites the dataset line by line without its blank lines: stray LFs are removed, trailing
// blanks cut, leading blanks kept (column 1 is part of the format), every line ended by CR LF.
// The new text is written whole to a work file beside the dataset (LineWriter) and then moved
// over it in one rename, so that at any failure the dataset stays as it was and the work file is
// removed.
// A dataset longer than 8000 bytes shows the progress dialog ("Compress MKDATA file").
// Returns "" on success; on a failure it shows the stage's text, CR LF and the failure's text
// in a message box and returns the stage's text: "Unable to open .dat file for reading.",
// "Unable to open a file in the product directory for writing." or "Unable to write to .dat file.".
std::string CompressDataset(const std::string& datasetPath, Platform& platform);

}  // namespace benchlog

#pragma once
// Squeezing the dataset: rewriting it without the blank lines that deleted Descriptions left.
#include <string>

#include "platform/platform.hpp"

namespace benchlog {

// The work file of the compression, in App.Path. One name on every system, so that no second
// file of another case can be left behind.
inline constexpr const char* kCompressWorkFile = "Temp.dat";

// Rewrites the dataset line by line without its blank lines: stray LFs are removed, trailing
// blanks cut, leading blanks kept (column 1 is part of the format), every line ended by CR LF.
// The new text is written whole to "Temp.dat" in App.Path and then moved over the dataset in one
// rename, so that at any failure the dataset is either the old file or the new one, whole.
// A dataset longer than 8000 bytes shows the progress dialog ("Compress MKDATA file").
// Returns "" on success; on a failure it shows the stage's text, CR LF and the failure's text
// in a message box and returns the stage's text: "Unable to open .dat file for reading.",
// "Unable to open a file in the product directory for writing." or "Unable to write to .dat file.".
std::string CompressDataset(const std::string& datasetPath, Platform& platform);

}  // namespace benchlog

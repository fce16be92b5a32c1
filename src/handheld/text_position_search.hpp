#pragma once
// The search of a dataset's text lines for positions: each Description gives at most one find, a
// latitude and a longitude found in one text line (which runs on from the line before it). A find
// of a mark whose last history condition is good goes to the report; when it also lies within
// 15 seconds of the published position in both angles, to the HH file as well.
#include <string>

#include "platform/progress.hpp"

namespace benchlog {

// Reads the dataset at `datasetPath` line by line and writes `hhPath` and `reportPath` (both
// replaced; the report is always made). The progress bar gains one step a Description up to its
// maximum. Throws RuntimeFailure when a file cannot be read or written.
void SearchTextPositions(const std::string& datasetPath, const std::string& hhPath, const std::string& reportPath,
                         Progress& progress);

// The seconds between a published angle ("391544.12", blanks already out) and a found one
// ("N391544.5", read without its letter); a text that is no angle reads as 0.
double SecondsApart(const std::string& published, const std::string& found);

}  // namespace benchlog

#pragma once
// Taking one Description out of the dataset by PID, and blanking one in place. The dataset is
// append-and-blank: a Description is never edited where it stands; it is overwritten with blanks
// (the file keeps its length, so the index stays valid), and a later compression drops them.
// Both return their failure as a text; "" means success.
#include <string>

#include "session/mark_index.hpp"

namespace benchlog {

// Reads the Description of `pid` (located as LocateMark tells) into `text`, with its CR LF line
// ends. Results: "PID not found!"; "Invalid description Length!" when the span is not positive.
// When the dataset does not exist or the offset is below 1 nothing is read and "" is returned,
// `text` staying as passed. Reading stops at the end of the file. Other failures (the file cannot
// be opened) throw RuntimeFailure to the caller.
std::string GetDescription(const MarkIndex& markIndex, const std::string& datasetPath, const std::string& pid,
                           std::string& text);

// Overwrites the Description of `pid` with blanks ending in one CR LF (an offset of 0 counts as
// 1; a span of 2 bytes or less is left alone). Results: "PID not found!"; "Unable to open .dat
// file for writing." when the dataset cannot be opened for writing; the failure's own text when
// the write fails. An empty `pid` is found at position 1, so it blanks the first Description.
std::string BlankDescription(const MarkIndex& markIndex, const std::string& datasetPath, const std::string& pid);

}  // namespace benchlog

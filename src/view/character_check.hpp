#pragma once
// The character check: one stray byte in a fixed-column data sheet shifts its columns, so any file
// can be read byte by byte, every byte that is no plain text listed in a report beside the file
// with its line and column, and the kind of file told at the end (UNIX, DOS, binary or corrupted).
#include <cstdint>
#include <string>

namespace benchlog {

class Progress;
class Ui;
struct Session;
struct Platform;

// The text the report gives a byte's type; nullptr for the bytes that are not reported (LF, CR
// and the plain text from the blank to "}").
const char* CharacterType(unsigned char byte);

// The report's path: the checked file's path without its extension, then "-rpt.txt".
std::string CharacterReportName(const std::string& fileName);

// Checks `fileName` and writes the report to `reportName` (replaced). Lines and columns count
// from 1 as the check sees them: a linefeed sets the column to 1, so on every line after the first
// the first character stands in column 2. At every thousandth byte the bar of `progress` moves
// one step while it is below its maximum, and `ui` lets pending events run. Throws RuntimeFailure
// when the file cannot be read or the report cannot be written.
void CheckFileBytes(const std::string& fileName, const std::string& reportName, Progress& progress, Ui& ui);

// "Find Problem Characters in a Text File": asks for the file, checks it behind the progress
// dialog when it is longer than 1000 bytes, and shows the report in the viewer.
void mnuFindProbChar(Session& session, Platform& platform);

}  // namespace benchlog

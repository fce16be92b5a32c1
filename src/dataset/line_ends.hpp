#pragma once
// The line ends of a dataset file. A dataset's lines end in CR LF, and the line input ends a line
// at CR alone, so a file whose lines end in a lone LF (as text files made on Linux do) reads as
// one long line, and a compression would join all its lines into one. Such a file is found here,
// converted to CR LF when the user agrees, and refused by every command that rewrites the dataset.
#include <cstdint>
#include <string>

#include "platform/platform.hpp"

namespace benchlog {

struct LineEndCounts {
  std::uint64_t crLf = 0;    // CR LF pairs
  std::uint64_t loneLf = 0;  // LFs that follow no CR
  std::uint64_t length = 0;  // bytes in the file
};

// Counts the line ends of the whole file, 64 KB at a time. Throws FileNotFound when the file
// cannot be read.
LineEndCounts CountLineEnds(const std::string& path);

// Lines that end in LF: more lone LFs than CR LF pairs. A stray LF here and there in a CR LF
// dataset does not make it one (compression removes those).
bool IsLfOnly(const LineEndCounts& counts);

// The refusal of a conversion that would take the dataset past the size limit (each lone LF gains
// a CR); "" when it fits.
std::string ConversionSizeRefusal(const LineEndCounts& counts);

// Where the conversion keeps the file as it was: the path and ".lf.bak".
std::string LfBackupPath(const std::string& path);

// Writes a copy of the file as it is to LfBackupPath, then replaces the file by one in which every
// lone LF is a CR LF (CR LF pairs and lone CRs stay), both through LineWriter; the copy is closed
// before the file is replaced. Throws RuntimeFailure, the file staying as it was.
void ConvertToCrLf(const std::string& path);

enum class LineEndAnswer {
  kNotAsked,   // no file, or its line ends are CR LF
  kConverted,  // the user said Yes and the file now has CR LF line ends
  kDeclined,   // the user said No: the file is as it was
  kFailed,     // the conversion was refused or failed, and the user was told: the file is as it was
};

// When the file is LF-only, asks (Yes/No, title "Line Ends") whether to convert it, naming the
// copy kept beside it; `onNo` tells what No means for the command that asks. On Yes converts it,
// unless that would pass the size limit.
LineEndAnswer OfferCrLfConversion(const std::string& path, const std::string& onNo, Platform& platform);

// The guard of every command that rewrites the dataset: when the dataset is LF-only, tells the
// user why the command is refused and returns true, nothing having been written. A missing
// dataset is left to the command.
bool RefusedForLfLineEnds(const std::string& datasetPath, Ui& ui);

}  // namespace benchlog

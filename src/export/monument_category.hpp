#pragma once
// "Monument_Category.dat" in the support folder: one marker code a line, its category letter in
// column 1 and the code from column 3 ("D DB", "L 57"). "L" is a landmark.
#include <string>
#include <string_view>

namespace benchlog {

inline constexpr const char* kMonumentCategoryFileName = "Monument_Category.dat";

// The category of a marker code: reads "Monument_Category.dat" in `supportPath` (a folder ending
// in a separator) line by line to its end, and gives the first character of the first line whose
// text from column 3 on, trimmed, equals `code` (exact, case-sensitive). "" when no line matches.
// The file is consulted anew on every call: its content is kept between calls and read again
// whenever its size or modification time changed, so a changed table takes effect at once.
// Throws RuntimeFailure FileNotFound when the file is missing.
std::string MonumentCategory(const std::string& supportPath, std::string_view code);

}  // namespace benchlog

#pragma once
// "Monument_Category.dat" in the support folder: one marker code a line, its category letter in
// column 1 and the code from column 3 ("D DB", "L 57"). "L" is a landmark.
#include <string>
#include <string_view>
#include <unordered_map>

namespace benchlog {

inline constexpr const char* kMonumentCategoryFileName = "Monument_Category.dat";

// The file as the look-up reads it: for each code (the text from column 3 on, trimmed), the
// first character of the first line that gives it.
using CategoryTable = std::unordered_map<std::string, std::string>;

// Reads the file at `path` line by line to its end. Throws RuntimeFailure FileNotFound when the
// file is missing.
CategoryTable ReadCategoryTable(const std::string& path);

// The category of a marker code: the first character of the first line whose text from column 3
// on, trimmed, equals `code` (exact, case-sensitive). "" when no line matches.
std::string MonumentCategory(const CategoryTable& table, std::string_view code);

}  // namespace benchlog

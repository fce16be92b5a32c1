#pragma once
// PrintFileName: a listing file to the printer, landscape in Courier size 8, 55 body lines a page
// under a head of the centred title and the file's first line.
#include <string>
#include <vector>

#include "platform/platform.hpp"
#include "platform/printer.hpp"

namespace benchlog {

// The pages of a file's lines (without their ends). The head of every page: 7 empty lines, the
// title (70 minus half its length blanks in front, the half rounded to even), an empty line, the
// file's first line, an empty line. The second line is dropped; every further line follows with 8
// blanks in front, and after each 55 of them a new page starts with the head, even at the end.
// Fewer than two lines fail as reading past the end of the file does.
PrintDocument LayOutFile(const std::vector<std::string>& fileLines, const std::string& header);

// The printer dialog "Select Printer" (cancelling throws the cancel failure), the progress
// dialog while the file prints, then "Printing complete".
void PrintFileName(Platform& platform, const std::string& fileName, const std::string& header);

}  // namespace benchlog

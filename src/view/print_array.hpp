#pragma once
// PrintArray: an array of lines to the printer in Courier, under a head with a title on the first
// page, with the page number at the foot of every page. The page set-up follows the line width.
#include <string>
#include <vector>

#include "platform/platform.hpp"
#include "platform/printer.hpp"

namespace benchlog {

// The page set-up for a line width: up to 80 portrait at size 10 with 66 lines of 80 characters;
// 81 to 120 landscape at size 10 with 49 lines of 120; above 120 landscape at size 8 with 62
// lines of 132.
PrintDocument PageSetupForWidth(int lineWidth);

// The pages PrintArray prints. The head of a page has 7 lines, one fewer when `title` is empty
// and one fewer again when `colHeader` is: line 4 is the centred title (first page only), line 6
// the column header. Head lines count into a page's lines. When the count reaches the page's
// lines minus 2, an empty line and the centred "Page n" close the page. A string beginning with a
// form feed starts a new page (the string is dropped, the count is not reset); a first string
// that is blank is skipped.
PrintDocument LayOutArray(const std::vector<std::string>& lines, const std::string& title,
                          const std::string& colHeader, int leftMargin, int lineWidth);

// Lays out the lines and prints them on platform.printer, then says "Printing complete".
void PrintArray(Platform& platform, const std::vector<std::string>& lines, const std::string& title,
                const std::string& colHeader, int leftMargin, int lineWidth);

// The printer of the platform; a RuntimeFailure when the program has none.
Printer& PlatformPrinter(Platform& platform);

// Shows the printer dialog titled "Select Printer"; cancelling it throws the cancel failure.
void ChoosePrinterOrCancel(Platform& platform);

}  // namespace benchlog

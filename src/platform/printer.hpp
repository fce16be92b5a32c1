#pragma once
// The printer: a document is pages of fixed-pitch text lines, laid out by the logic (the number of
// lines a page holds is the layout's constant, never measured); the printer only puts them on
// paper, line under line, spread evenly over the page's height.
#include <string>
#include <vector>

namespace benchlog {

enum class PageOrientation { Portrait, Landscape };

struct PrintDocument {
  std::string fontName = "Courier New";  // a monospaced face; the printer uses a metric-compatible one
  int fontSize = 10;                     // points
  PageOrientation orientation = PageOrientation::Portrait;
  int linesPerPage = 66;  // the lines one page holds
  int pageWidth = 80;     // the characters one line may hold
  std::vector<std::vector<std::string>> pages;
};

class Printer {
 public:
  virtual ~Printer() = default;
  // The printer dialog with the given title (it also offers printing to a PDF file); false when
  // the user cancelled it.
  virtual bool ChoosePrinter(const std::string& title) = 0;
  // Prints the pages as one document, after a preview, and returns once it is spooled. Text is
  // the program's code page (Windows-1252).
  virtual void PrintText(const PrintDocument& document) = 0;
  // One landscape page with the picture at the page's origin at its natural size; what does not
  // fit is cut off. Throws RuntimeFailure when the picture cannot be read.
  virtual void PrintPicture(const std::string& path) = 0;
};

}  // namespace benchlog

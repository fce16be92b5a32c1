#pragma once
// Where the lines of a printed page fall on the paper: a fixed margin all round, the page's lines
// spread evenly over the height between the margins, and the monospaced face's advance of 0.6 em
// per character. All in points (1/72 inch).
#include "platform/printer.hpp"

namespace benchlog {

struct PaperSize {
  double width;   // upright
  double height;
};

inline constexpr PaperSize kLetterPaper{612.0, 792.0};
inline constexpr PaperSize kA4Paper{595.2756, 841.8898};
inline constexpr double kPrintMargin = 18.0;  // a quarter inch: inside every printer's unprintable edge

struct PageGeometry {
  double pageWidth = 0, pageHeight = 0;  // the paper as it lies for the orientation
  double lineHeight = 0;                 // from one line's top to the next
  double charWidth = 0;                  // the face's advance
  bool linesFit = false;                 // a line of the document's full width fits between the margins
};

PageGeometry LayOutPage(PaperSize paper, const PrintDocument& document);

}  // namespace benchlog

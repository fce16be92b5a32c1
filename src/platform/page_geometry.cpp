#include "platform/page_geometry.hpp"

#include <utility>

namespace benchlog {

PageGeometry LayOutPage(PaperSize paper, const PrintDocument& document) {
  PageGeometry g;
  g.pageWidth = paper.width;
  g.pageHeight = paper.height;
  if (document.orientation == PageOrientation::Landscape) std::swap(g.pageWidth, g.pageHeight);
  const double usableHeight = g.pageHeight - 2 * kPrintMargin;
  g.lineHeight = document.linesPerPage > 0 ? usableHeight / document.linesPerPage : usableHeight;
  g.charWidth = 0.6 * document.fontSize;
  g.linesFit = g.charWidth * document.pageWidth <= g.pageWidth - 2 * kPrintMargin;
  return g;
}

}  // namespace benchlog

#pragma once
// The symbol of one mark: its shape and colours tell the mark's horizontal and vertical class.
//   a horizontal class (any code but "", "X" and "W", on no landmark): an upright triangle, base and
//     height s, in the class colour; "S" adds a circle of radius s / 1.5;
//   a landmark: a black circle of radius h;
//   a vertical class: a box of side s whose top right corner is (X + h, Y + h), blue for "1", red
//     for "2", black for any other code;
//   no class at all: a black cross.
// Then the labels the options ask for, to the right of the symbol.
#include <cstdint>

#include "plot/plot_canvas.hpp"
#include "plot/plot_store.hpp"

namespace benchlog {

// Symbol size s (metres) and its half h and third t, both truncated.
struct SymbolSize {
  int s = 6, h = 3, t = 2;
};

// The symbol size of a view `height` metres high: height / 80 rounded, at least 6. Throws
// RuntimeFailure "Overflow" past the 16-bit range.
SymbolSize SymbolSizeFor(double height);

struct MarkLabels {
  bool numbers = true, pids = true, designations = true;
  double offsetX = 4;   // from the mark's east to the labels' left
  double offsetY = 0;   // from the mark's north up to the number's and the PID's line
};

// The colour of a horizontal order code, or nothing for a code that keeps the previous mark's.
std::uint32_t ClassColor(const std::string& horz, std::uint32_t previous);
std::uint32_t VerticalColor(const std::string& vert);

// Draws mark `n` of the store. `classColor` carries the class colour from one mark to the next.
void DrawMark(PlotCanvas& canvas, const PlotStore& store, int n, const SymbolSize& size, const MarkLabels& labels,
              std::uint32_t& classColor);

}  // namespace benchlog

#pragma once
// The styles of the KML file: an icon for each control class, told by shape and colour, and two
// line styles that no placemark uses yet.
#include <string>
#include <string_view>

namespace benchlog {

// The style blocks, each line ending in CR LF, indented two blanks inside the document.
std::string KmlStyleBlocks();

// The style of a mark by its order codes: a star for the special order, triangles by horizontal
// order, squares by vertical order for marks with no horizontal order.
std::string_view StyleOfOrders(std::string_view horzOrder, std::string_view vertOrder);

}  // namespace benchlog

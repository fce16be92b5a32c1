#pragma once
// The lines of the horizontal (".hcl") and vertical (".vcl") control listings and their headings,
// laid out with print positions: each item goes to its Tab column, and an item that runs past the
// next column breaks the line there (the rest of the mark's items go on a new line).
#include <string>
#include <string_view>

#include "export/parser/mark_record.hpp"
#include "export/mark_values.hpp"

namespace benchlog {

inline constexpr std::size_t kListingDesignationWidth = 30;

// A mark's line of the horizontal listing, CR LF included: name (30), PID at 32, datum and tag at
// 40, latitude at 55, longitude at 71, order at 88, north and east at 91, stability at 116,
// GPS suitability at 118, year set at 120, year recovered at 125, condition at 129, photo and
// sketch flags at 131 and 133. `pid` is the PID the export found for the Description.
std::string HorizontalLine(const MarkRecord& record, std::string_view pid, const MarkValues& values);

// A mark's line of the vertical listing, CR LF included: name, PID at 32, vertical datum at 40,
// latitude (11) at 50, longitude (12) at 63, order and class at 76; from 81 the whole north and
// east in the listing's unit and from 99 the elevation, only when north and east are both not 0
// (the elevation only when it is not 0); stability at 119 and the rest as in the horizontal line
// two columns further on. The elevation is taken as it stands in `values`.
std::string VerticalLine(const MarkRecord& record, std::string_view pid, const MarkValues& values,
                         double coordinateFactor, double elevationFactor);

// Metres to feet for the vertical listing, in single precision: times 3937, then divided by 1200.
float ElevationInFeet(float metres);

// The heading lines, CR LF included. `feet`: the plane coordinates are in feet; `elevationFeet`:
// the elevations are.
std::string HorizontalHeading(bool feet);
std::string VerticalHeading(bool feet, bool elevationFeet);

}  // namespace benchlog

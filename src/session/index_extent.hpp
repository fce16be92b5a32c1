#pragma once
// The extent of the marks of an index in decimal degrees (longitude positive west), read from
// each record's latitude and longitude columns as degrees, minutes and seconds numbers.
#include <cstddef>
#include <string_view>

#include "session/mark_index.hpp"

namespace benchlog {

struct IndexExtentDegrees {
  double minLatitude = 90;
  double minLongitude = 360;
  double maxLatitude = 0;
  double maxLongitude = 0;
};

// Degrees + minutes / 60 + seconds / 3600 of a record's latitude (column 12, 2 digits of degrees)
// or longitude (column 27, 3 digits), as numbers read from the columns.
double RecordDegrees(std::string_view record, std::size_t degrees, std::size_t degreeWidth);

// A latitude or longitude that comes to exactly 0 (a blank position, the sentinel, an empty
// element) leaves its own two bounds as they are; the other coordinate of the record still counts.
// An index with no position keeps the starting values 90, 360, 0, 0.
IndexExtentDegrees IndexExtent(const MarkIndex& markIndex);

}  // namespace benchlog

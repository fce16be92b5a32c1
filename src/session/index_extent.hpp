#pragma once
// The extent of the marks of an index in decimal degrees (longitude positive west), read from
// each record's latitude and longitude columns as degrees, minutes and seconds numbers.
#include "session/mark_index.hpp"

namespace benchlog {

struct IndexExtentDegrees {
  double minLatitude = 90;
  double minLongitude = 360;
  double maxLatitude = 0;
  double maxLongitude = 0;
};

// A latitude or longitude that comes to exactly 0 (a blank position, the sentinel, an empty
// element) leaves its own two bounds as they are; the other coordinate of the record still counts.
// An index with no position keeps the starting values 90, 360, 0, 0.
IndexExtentDegrees IndexExtent(const MarkIndex& markIndex);

}  // namespace benchlog

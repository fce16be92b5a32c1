#pragma once
// "Towns.txt" in the support folder: one town a line, CR LF line ends, sorted. The name stands
// from column 1, blanks fill up to column 30, then the latitude DDMMSS (columns 30-35) and directly
// behind it the longitude DDDMMSS (columns 36-42), positive west, without hemisphere letters. The
// first 32 columns are a town's identity: two lines that agree there are the same town.
#include <string>
#include <string_view>

namespace benchlog {

inline constexpr const char* kTownsFileName = "Towns.txt";

struct TownLine {
  std::string name;        // the first 28 characters of the line, trimmed
  double latitude = 0;     // decimal degrees, positive north
  double longitude = 0;    // decimal degrees, positive west
};

// Reads one line as the plot does: latitude degrees, minutes and seconds from columns 30-31,
// 32-33 and 34-35, longitude from 36-38, 39-40 and 41-42, each read as a number (a missing or
// non-numeric part reads as 0), and degrees + minutes / 60 + seconds / 3600. Never fails; a short
// line gives zeros. Resolution one second of arc.
TownLine ReadTownLine(std::string_view line);

// The plot keeps a town only when its latitude lies strictly between the two latitudes of the
// extent and its longitude strictly between the two longitudes; a town on the edge is left out.
bool TownInExtent(const TownLine& town, double minLatitude, double minLongitude, double maxLatitude,
                  double maxLongitude);

}  // namespace benchlog

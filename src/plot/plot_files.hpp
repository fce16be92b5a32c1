#pragma once
// The two work files of the plot window, rewritten whole in the program's folder before each
// showing: every mark of the index that has a position, and every town inside the index's extent,
// projected into one UTM zone (the zone of the extent's middle longitude), with whole metres.
//
// UTMCoords.dat, one mark a line: 1-4 point number ("0000"), 6-13 north, 15-22 east (both
// "00000000"), 24-53 designation, 55 horizontal order, 57 vertical order, 59 landmark flag (always
// blank here; "L" is read as a landmark), 61-66 PID.
// UTMCities.dat, one town a line: 1-5 blanks, 6-13 north, 15-22 east, 24 on the town's name.
#include <cstdint>
#include <string>

#include "geodesy/ellipsoid.hpp"
#include "session/index_extent.hpp"
#include "session/mark_index.hpp"

namespace benchlog {

inline constexpr const char* kPlotCoordsFileName = "UTMCoords.dat";
inline constexpr const char* kPlotCitiesFileName = "UTMCities.dat";

// The zone line every mark and town of a plot is projected into: the UTM zone of the middle of the
// extent in longitude. An index without positions gives the middle longitude 180.
std::string PlotZoneLine(const IndexExtentDegrees& extent);

// One line of UTMCoords.dat. A point number of five digits makes the line one column longer.
std::string PlotCoordsLine(int pointNumber, double north, double east, const std::string& indexRecord);
// One line of UTMCities.dat.
std::string PlotCityLine(double north, double east, const std::string& townName);

// Writes UTMCoords.dat and UTMCities.dat into `appPath` (the folder, without a last separator) from
// the index and from "Towns.txt" in `supportPath` (with its separator). A record with a latitude or
// a longitude of exactly 0 takes no point number; there is no filter by class. Marks far outside
// the zone are still projected into it. Returns the error text, which stays empty: failures
// (a missing "Towns.txt", an unwritable file) are thrown as RuntimeFailure.
std::string PreparePlotFiles(const MarkIndex& markIndex, const Ellipsoid& ellipsoid, const std::string& appPath,
                             const std::string& supportPath);

}  // namespace benchlog

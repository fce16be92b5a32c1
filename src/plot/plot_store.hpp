#pragma once
// The plot store: the marks and towns of the two plot files, held in arrays indexed by point number
// (0 to 9999), as the plot window draws and picks them. Towns go on numbering from the last mark's
// number, so the lower entries of the town arrays stay 0 and empty.
#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace benchlog {

inline constexpr int kPlotCapacity = 10000;  // point numbers 0 to 9999

struct PlotStore {
  std::int16_t FirstPoint = 10000;  // lowest point number read
  std::int16_t LastPoint = 0;       // highest point number read
  std::vector<double> PtNorth = std::vector<double>(kPlotCapacity);
  std::vector<double> PtEast = std::vector<double>(kPlotCapacity);
  std::vector<std::string> PtDesignation = std::vector<std::string>(kPlotCapacity);
  std::vector<std::string> PtHorz = std::vector<std::string>(kPlotCapacity);  // "" for a blank code
  std::vector<std::string> PtVert = std::vector<std::string>(kPlotCapacity);
  std::vector<bool> PtLandmark = std::vector<bool>(kPlotCapacity);
  std::vector<std::string> PtPid = std::vector<std::string>(kPlotCapacity);
  std::vector<double> CityNorth, CityEast;
  std::vector<std::string> CityName;
};

// Fills `store` (which the caller erased) from UTMCoords.dat and UTMCities.dat in `appPath`.
// Returns "File not found!" when UTMCoords.dat is missing, else "". A point number outside 0 to
// 9999 throws RuntimeFailure "Subscript out of range"; a missing UTMCities.dat throws "File not
// found". A point number of five digits is read as its first four.
std::string LoadPlotFile(PlotStore& store, const std::string& appPath);

}  // namespace benchlog

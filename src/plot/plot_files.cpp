#include "plot/plot_files.hpp"

#include "common/fit.hpp"
#include "common/format.hpp"
#include "common/line_input.hpp"
#include "common/line_writer.hpp"
#include "common/number_text.hpp"
#include "common/text.hpp"
#include "geodesy/angles.hpp"
#include "geodesy/transverse_mercator.hpp"
#include "geodesy/utm_zone.hpp"
#include "session/index_extent.hpp"
#include "session/index_record.hpp"
#include "support_files/towns_file.hpp"

namespace benchlog {
namespace {

void Project(const Ellipsoid& ellipsoid, const std::string& zoneLine, double latitudeDegrees,
             double longitudeDegrees, double& north, double& east) {
  double convergence = 0, scale = 0;
  TmForward(ellipsoid, zoneLine, RadOfDeg(latitudeDegrees), RadOfDeg(longitudeDegrees), north, east, convergence,
            scale);
}

std::string Path(const std::string& folder, const char* name) { return folder + "/" + name; }

void WriteCoords(const MarkIndex& markIndex, const Ellipsoid& ellipsoid, const std::string& zoneLine,
                 const std::string& path) {
  LineWriter file(path);
  int pointNumber = 0;
  for (const std::string& record : markIndex.Elements()) {
    const double latitude = RecordDegrees(record, 12, 2);
    const double longitude = RecordDegrees(record, 27, 3);
    if (latitude == 0 || longitude == 0) continue;
    double north = 0, east = 0;
    Project(ellipsoid, zoneLine, latitude, longitude, north, east);
    file.WriteLine(PlotCoordsLine(++pointNumber, north, east, record));
  }
  file.Close();
}

void WriteCities(const IndexExtentDegrees& extent, const Ellipsoid& ellipsoid, const std::string& zoneLine,
                 const std::string& townsPath, const std::string& path) {
  LineReader towns(townsPath);
  LineWriter file(path);
  std::string line;
  while (towns.ReadLine(line)) {
    const TownLine town = ReadTownLine(line);
    if (!TownInExtent(town, extent.minLatitude, extent.minLongitude, extent.maxLatitude, extent.maxLongitude))
      continue;
    double north = 0, east = 0;
    Project(ellipsoid, zoneLine, town.latitude, town.longitude, north, east);
    file.WriteLine(PlotCityLine(north, east, town.name));
  }
  file.Close();
}

}  // namespace

std::string PlotZoneLine(const IndexExtentDegrees& extent) {
  std::string zoneLine;
  std::int16_t zone = 0;
  UtmZoneLine(zoneLine, RadOfDeg((extent.minLongitude + extent.maxLongitude) / 2), zone);
  return zoneLine;
}

std::string PlotCoordsLine(int pointNumber, double north, double east, const std::string& indexRecord) {
  std::string line = Format(pointNumber, "0000");
  line += ' ' + Format(north, "00000000") + ' ' + Format(east, "00000000") + ' ';
  line += FitToWidth(IndexField(indexRecord, kDesignationColumn), 30) + ' ';
  line += FitToWidth(IndexField(indexRecord, kHorzOrderColumn), 1) + ' ';
  line += FitToWidth(IndexField(indexRecord, kVertOrderColumn), 1) + "   ";
  line += IndexField(indexRecord, kPidColumn);
  return line;
}

std::string PlotCityLine(double north, double east, const std::string& townName) {
  return "     " + Format(north, "00000000") + ' ' + Format(east, "00000000") + ' ' + townName;
}

std::string PreparePlotFiles(const MarkIndex& markIndex, const Ellipsoid& ellipsoid, const std::string& appPath,
                             const std::string& supportPath) {
  const IndexExtentDegrees extent = IndexExtent(markIndex);
  const std::string zoneLine = PlotZoneLine(extent);
  WriteCoords(markIndex, ellipsoid, zoneLine, Path(appPath, kPlotCoordsFileName));
  WriteCities(extent, ellipsoid, zoneLine, supportPath + kTownsFileName, Path(appPath, kPlotCitiesFileName));
  return "";
}

}  // namespace benchlog

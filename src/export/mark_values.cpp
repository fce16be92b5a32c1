#include "export/mark_values.hpp"

#include "common/format.hpp"
#include "common/number_text.hpp"
#include "common/rounding.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "geodesy/angle_text.hpp"
#include "geodesy/angles.hpp"
#include "geodesy/lambert.hpp"
#include "geodesy/oblique_mercator.hpp"
#include "geodesy/transverse_mercator.hpp"
#include "geodesy/utm_zone.hpp"
#include "geodesy/zone_line.hpp"

namespace benchlog {
namespace {

constexpr std::size_t kCoordinateTextWidth = 12;

void ReadPosition(const MarkRecord& record, MarkValues& v) {
  const std::string_view latitude = record.Latitude.View();
  const std::string_view longitude = record.Longitude.View();
  v.LatText = Left(latitude, 2) + " " + Mid(latitude, 3, 2) + " " + Mid(latitude, 5);
  v.LonText = Left(longitude, 3) + " " + Mid(longitude, 4, 2) + " " + Mid(longitude, 6);
  v.Elevation = static_cast<float>(Val(record.OrthoHeight.View()));
  // A text that is no angle (a mark without a position) reads as 0 and is projected as such.
  std::string error;
  DmsToRad(v.LatText, v.LatRadians, error);
  DmsToRad(v.LonText, v.LonRadians, error);
  v.LatDeg = DegOfRad(v.LatRadians);
  if (record.LatHemi == "S") v.LatDeg = -v.LatDeg;
  v.LonDeg = DegOfRad(v.LonRadians);
  if (record.LonHemi == "W") v.LonDeg = -v.LonDeg;
}

// Each kind has its routine; any other kind leaves the values of the mark before.
void Project(const ExportSetup& setup, LambertZoneConstants& lambert, MarkValues& v) {
  const std::string& line = setup.zoneLine;
  const Ellipsoid& ellipsoid = setup.ellipsoid;
  const std::string kind = ZoneKind(line);
  if (kind == "LC") {
    LambertForward(ellipsoid, lambert, line, v.LatRadians, v.LonRadians, v.SpcNorth, v.SpcEast, v.SpcConvergence,
                   v.SpcScale);
  } else if (kind == "TM") {
    TmForward(ellipsoid, line, v.LatRadians, v.LonRadians, v.SpcNorth, v.SpcEast, v.SpcConvergence, v.SpcScale);
  } else if (kind == "OM") {
    ObliqueForward(ellipsoid, line, v.LatRadians, v.LonRadians, v.SpcNorth, v.SpcEast, v.SpcConvergence,
                   v.SpcScale);
  }
}

// The combined factor of an adjusted position for a grid scale: the height is the ellipsoid
// height, or, when that reads as 0, the orthometric height plus the geoid height.
std::string CombinedFactorText(const Ellipsoid& ellipsoid, const MarkRecord& record, double latitude,
                               double scale) {
  double height = Val(record.EllipHeight.View());
  if (height == 0) height = Val(record.OrthoHeight.View()) + Val(record.GeoidHeight.View());
  double elevationFactor = 0, combined = 0;
  CombinedFactor(ellipsoid, latitude, height, scale, elevationFactor, combined);
  return Format(combined, "0.00000000");
}

}  // namespace

std::string CoordinateText(std::string text) {
  if (text.size() > kCoordinateTextWidth) throw InvalidProcedureCall();
  text.resize(kCoordinateTextWidth, ' ');
  return text;
}

void ComputePlaneValues(const ExportSetup& setup, LambertZoneConstants& lambert, const MarkRecord& record,
                        MarkValues& v) {
  ReadPosition(record, v);
  Project(setup, lambert, v);
  const bool adjusted = record.PosSource == "A";
  const double north = setup.coordinateFactor * v.SpcNorth;
  const double east = setup.coordinateFactor * v.SpcEast;
  // Adjusted positions to the millimetre; the blanks of the patterns stand behind the number.
  v.NorthText = CoordinateText(Format(north, adjusted ? "#######0.000 " : "#######0    "));
  v.EastText = CoordinateText(Format(east, adjusted ? "#######0.000" : "#######0     "));
  if (adjusted) v.SpcCgfText = CombinedFactorText(setup.ellipsoid, record, v.LatRadians, v.SpcScale);
}

void ComputeUtmValues(const ExportSetup& setup, const MarkRecord& record, MarkValues& v) {
  std::int16_t zone = CInt(Val(setup.utmZoneText));
  if (!setup.utmAsked || zone == 0) return;
  std::string zoneLine;
  UtmZoneLine(zoneLine, v.LonRadians, zone);
  TmForward(setup.ellipsoid, zoneLine, v.LatRadians, v.LonRadians, v.UtmNorth, v.UtmEast, v.UtmConvergence,
            v.UtmScale);
  v.UtmScaleText = Format(v.UtmScale, "0.00000000");
  if (record.PosSource == "A") v.UtmCgfText = CombinedFactorText(setup.ellipsoid, record, v.LatRadians, v.UtmScale);
  RadToDms(v.UtmConvergence, v.UtmConvText, kDmsBlank, 1, true, false);
  const char* pattern = v.horizontal ? "#,###,##0.000" : "#,###,##0";
  v.UtmNorthText = Format(v.UtmNorth, pattern);
  v.UtmEastText = Format(v.UtmEast, pattern);
}

void ComputePictureFlags(const PictureFolder& pictures, const MarkRecord& record, MarkValues& v) {
  const std::string pid(record.Pid.View());
  v.PhotoFlag = pictures.Has(pid + "ph.jpg") ? "Y" : " ";
  v.SketchFlag = pictures.Has(pid + "sk.jpg") ? "Y" : " ";
}

}  // namespace benchlog

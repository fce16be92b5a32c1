#pragma once
// The working values of one mark in an export: its position as text and as numbers, its plane
// coordinates in the chosen state plane zone, their texts for the listings, the combined factors,
// the UTM values and the picture flags. Every output of the export reads them.
//
// One MarkValues lives for the whole export and is updated mark by mark, so a value that a mark
// does not compute is the one the mark before left: the projection of a zone whose kind is none
// of "LC", "TM", "OM", the SPC combined factor of a mark without an adjusted position, and the
// UTM values when UTM is not asked for.
#include <cstdint>
#include <string>

#include "dataset/picture_folder.hpp"
#include "export/parser/mark_record.hpp"
#include "geodesy/ellipsoid.hpp"
#include "geodesy/lambert.hpp"

namespace benchlog {

// What the options of an export fix for all its marks.
struct ExportSetup {
  Ellipsoid ellipsoid;           // the configuration's a, e2 and ep2
  std::string zoneLine;          // the zone's line of "Zones.txt"; "" when the zone is not there
  double coordinateFactor = 1;   // plane metres to the listing's unit (grid feet or 1)
  double elevationFactor = 1;    // always 1: elevations in feet are made by the vertical listing
  bool utmAsked = false;         // frmCDT's chkUTM ticked, or optUTM chosen
  std::string utmZoneText;       // frmCDT's cboUTMZone
  std::string datasetFolder;     // the dataset's folder with its separator: photos and sketches
};

struct MarkValues {
  std::string LatText;           // "DD MM SS.SSSSS", trimmed by the angle reading
  std::string LonText;           // "DDD MM SS.SSSSS", likewise
  float Elevation = 0;           // OrthoHeight as a number, metres (feet once a feet listing made it so)
  double LatRadians = 0;         // from LatText, 0 when it is no angle
  double LonRadians = 0;         // from LonText, positive west
  double LatDeg = 0;             // degrees, negative in the south
  double LonDeg = 0;             // degrees, negative in the west
  double SpcNorth = 0, SpcEast = 0;  // state plane metres
  double SpcConvergence = 0;     // radians
  double SpcScale = 0;           // grid scale factor
  std::string NorthText, EastText;   // 12 characters each, in the listing's unit
  std::string SpcCgfText;        // combined factor "0.00000000"
  double UtmNorth = 0, UtmEast = 0, UtmConvergence = 0, UtmScale = 0;
  std::string UtmNorthText, UtmEastText, UtmScaleText, UtmCgfText, UtmConvText;
  std::string PhotoFlag, SketchFlag;  // "Y" or " "
  std::string PlotLabel;         // the Microstation script's label (microstation_script.hpp); "" when not plotted
  bool horizontal = false;       // the mark is horizontal control (a line in the ".hcl")
  bool vertical = false;         // the mark is vertical control (a line in the ".vcl")
};

// The position texts and numbers, the projection by the zone line's kind, the coordinate texts
// and, for an adjusted position, the SPC combined factor. `lambert` holds the Lambert zone's
// constants from one mark to the next and is owned by the export run. Throws RuntimeFailure "Invalid
// procedure call" when a coordinate text does not fit its 12 characters (a value of 8 integer
// digits with decimals, or 9 digits without), and the projections' failures.
void ComputePlaneValues(const ExportSetup& setup, LambertZoneConstants& lambert, const MarkRecord& record,
                        MarkValues& values);

// The UTM values, when asked for and the zone text rounds to a zone that is not 0: the mark is
// projected in that zone (whatever its longitude), texts by "#,###,##0.000" for horizontal
// control and "#,###,##0" otherwise, scale by "0.00000000", convergence as "DDD MM SS.S" with
// its sign, and the combined factor for an adjusted position. Throws Overflow for a zone text
// beyond the 16-bit range.
void ComputeUtmValues(const ExportSetup& setup, const MarkRecord& record, MarkValues& values);

// "Y" when the dataset's folder (`pictures`, listed once per export) holds "<PID>ph.jpg"
// (photo) or "<PID>sk.jpg" (sketch), else " ".
void ComputePictureFlags(const PictureFolder& pictures, const MarkRecord& record, MarkValues& values);

// A coordinate text filled with blanks on the right to 12 characters; throws "Invalid procedure
// call" when it is longer.
std::string CoordinateText(std::string text);

}  // namespace benchlog

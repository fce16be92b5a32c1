#include "export/listing_lines.hpp"

#include "common/format.hpp"
#include "common/print_line.hpp"
#include "common/text.hpp"

namespace benchlog {
namespace {

// A number by `pattern`, filled with blanks on the right to `width` when shorter than `width` + 1;
// a wider one stays as it is and pushes the items behind it along.
std::string FilledNumber(double value, std::string_view pattern, std::size_t width) {
  std::string text = Format(value, pattern);
  if (text.size() < width) text.resize(width, ' ');
  return text;
}

// The columns both listings end with, from `column` on: stability, GPS suitability, year set, year
// recovered, condition, photo and sketch flags.
void WriteMarkState(PrintLine& line, const MarkRecord& record, const MarkValues& values, std::size_t column) {
  line.Tab(column).Write(record.Stability.View());
  line.Tab(column + 2).Write(record.SatSuitable.View());
  line.Tab(column + 4).Write(Left(record.FirstDate.View(), 4));
  line.Tab(column + 9).Write(Left(record.LastDate.View(), 4));
  line.Tab(column + 13).Write(record.Condition.View());
  line.Tab(column + 15).Write(values.PhotoFlag);
  line.Tab(column + 17).Write(values.SketchFlag);
}

std::string_view Name(const MarkRecord& record) {
  return record.Designation.View().substr(0, kListingDesignationWidth);
}

}  // namespace

std::string HorizontalLine(const MarkRecord& record, std::string_view pid, const MarkValues& values) {
  PrintLine line;
  line.Write(Name(record));
  line.Tab(32).Write(pid);
  line.Tab(40).Write(record.HorizDatum.View()).Write("(").Write(record.DatumTag.View()).Write(")");
  line.Tab(55).Write(values.LatText);
  line.Tab(71).Write(values.LonText);
  line.Tab(88).Write(record.HorizOrder.View());
  line.Tab(91).Write(values.NorthText).Write(values.EastText);
  WriteMarkState(line, record, values, 116);
  return line.Finish();
}

std::string VerticalLine(const MarkRecord& record, std::string_view pid, const MarkValues& values,
                         double coordinateFactor, double elevationFactor) {
  PrintLine line;
  line.Write(Name(record));
  line.Tab(32).Write(pid);
  line.Tab(40).Write(record.VertDatum.View());
  line.Tab(50).Write(Left(values.LatText, 11));
  line.Tab(63).Write(Left(values.LonText, 12));
  line.Tab(76).Write(record.VertOrder.View()).Write(" ").Write(record.VertClass.View());
  line.Tab(81);
  // Plane coordinates to the whole unit; a mark without them shows no elevation either.
  if (values.SpcNorth != 0 && values.SpcEast != 0) {
    line.Write(FilledNumber(coordinateFactor * values.SpcNorth, "######0  ", 9));
    line.Write(FilledNumber(coordinateFactor * values.SpcEast, "######0  ", 9));
    if (values.Elevation != 0)
      line.Tab(99).Write(FilledNumber(static_cast<double>(values.Elevation) * elevationFactor, "###0.000", 8));
  }
  WriteMarkState(line, record, values, 119);
  return line.Finish();
}

float ElevationInFeet(float metres) {
  const float times = metres * 3937.0f;
  return times / 1200.0f;
}

std::string HorizontalHeading(bool feet) {
  PrintLine line;
  line.Write("DESIGNATION");
  line.Tab(32).Write("PID");
  line.Tab(40).Write("DATUM");
  line.Tab(55).Write("LATITUDE");
  line.Tab(71).Write("LONGITUDE");
  line.Tab(88).Write("O");
  line.Tab(91).Write(feet ? "NORTH (FT)" : "NORTH (M)");
  line.Tab(103).Write(feet ? "EAST (FT)" : "EAST (M)");
  line.Tab(116).Write("M G SET  REC C P S");
  return line.Finish();
}

std::string VerticalHeading(bool feet, bool elevationFeet) {
  PrintLine line;
  line.Write("DESIGNATION");
  line.Tab(32).Write("PID");
  line.Tab(40).Write("DATUM");
  line.Tab(50).Write("LATITUDE");
  line.Tab(63).Write("LONGITUDE");
  line.Tab(76).Write("O C");
  line.Tab(81).Write(feet ? "NORTH FT" : "NORTH M");
  line.Tab(90).Write(feet ? "EAST FT" : "EAST M");
  line.Tab(100).Write(elevationFeet ? "88-ELEV (FEET)     M G SET  REC C P S" : "88-ELEV (METERS)   M G SET  REC C P S");
  return line.Finish();
}

}  // namespace benchlog

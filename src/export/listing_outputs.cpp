#include "export/listing_outputs.hpp"

#include "export/listing_lines.hpp"

namespace benchlog {
namespace {

void CutDesignation(MarkRecord& record) {
  record.Designation = record.Designation.View().substr(0, kListingDesignationWidth);
}

}  // namespace

void HorizontalListing::WriteMark(MarkRecord& record, std::string_view pid, MarkValues& values) {
  if (!values.horizontal) return;
  CutDesignation(record);
  file_.Write(HorizontalLine(record, pid, values));
}

void HorizontalListing::Finish() { file_.Finish(HorizontalHeading(feet_)); }

void VerticalListing::WriteMark(MarkRecord& record, std::string_view pid, MarkValues& values) {
  if (!values.vertical) return;
  if (elevationFeet_) values.Elevation = ElevationInFeet(values.Elevation);
  CutDesignation(record);
  file_.Write(VerticalLine(record, pid, values, coordinateFactor_, elevationFactor_));
}

void VerticalListing::Finish() { file_.Finish(VerticalHeading(feet_, elevationFeet_)); }

}  // namespace benchlog

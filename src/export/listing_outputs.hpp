#pragma once
// The two listings as outputs of the export: the ".hcl" file takes the marks that are horizontal
// control, the ".vcl" file those that are vertical control.
#include <string>

#include "export/export_output.hpp"
#include "export/listing_file.hpp"

namespace benchlog {

class HorizontalListing final : public ExportOutput {
 public:
  // `feet`: the plane coordinates are in feet (the heading says "(FT)", else "(M)").
  HorizontalListing(const std::string& path, bool feet) : file_(path), feet_(feet) {}
  // Only horizontal control; the record's Designation is first cut to 30 characters.
  void WriteMark(MarkRecord& record, std::string_view pid, MarkValues& values) override;
  void Finish() override;

 private:
  ListingFile file_;
  bool feet_;
};

class VerticalListing final : public ExportOutput {
 public:
  // `elevationFeet`: each mark's elevation is turned into feet before its line is written, and
  // stays so for the outputs behind.
  VerticalListing(const std::string& path, bool feet, bool elevationFeet, double coordinateFactor,
                  double elevationFactor)
      : file_(path), feet_(feet), elevationFeet_(elevationFeet), coordinateFactor_(coordinateFactor),
        elevationFactor_(elevationFactor) {}
  // Only vertical control; the record's Designation is first cut to 30 characters.
  void WriteMark(MarkRecord& record, std::string_view pid, MarkValues& values) override;
  void Finish() override;

 private:
  ListingFile file_;
  bool feet_;
  bool elevationFeet_;
  double coordinateFactor_;
  double elevationFactor_;
};

}  // namespace benchlog

#pragma once
// One output of the export. The outputs are opened in a fixed order before the loop over the
// Descriptions, each is handed every mark in that order, and each finishes its file after the
// loop; closing one is destroying it.
#include <string>
#include <string_view>

#include "export/parser/mark_record.hpp"
#include "export/mark_values.hpp"

namespace benchlog {

class ExportOutput {
 public:
  virtual ~ExportOutput() = default;
  // One mark, after its working values are computed. An output may change the record or the
  // values for the outputs behind it (a listing cuts the name to 30 characters; the vertical
  // listing in feet leaves the elevation in feet).
  virtual void WriteMark(MarkRecord& record, std::string_view pid, MarkValues& values) = 0;
  // After the loop: the output completes its file.
  virtual void Finish() = 0;
};

// Checks that an output may take `path`: a file that exists there and is read-only makes `ErrMsg`
// the path and " exists and is read-only!" and the result false. An old file is not deleted: the
// output replaces it when its new text is whole, so an export that fails leaves it as it was.
bool PrepareOutputPath(const std::string& path, std::string& ErrMsg);

}  // namespace benchlog

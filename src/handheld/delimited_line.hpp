#pragma once
// One line of a delimited file of positions turned into an HH record, by the columns that the
// slots of dlgDelimAndType name.
#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace benchlog {

// Where each item stands: a 0-based column of the split line, or none.
struct DelimitedColumns {
  std::optional<std::size_t> pid, pointNumber, designation, date, lonHemisphere, latHemisphere, latitude,
      longitude, gpsSuitable, agency;
  std::size_t required = 0;  // the last column index a line must have
};

// Reads the slots by the first three characters of their texts; a later slot with the same prefix
// overrides an earlier one, and prefixes of no item ("SPC", "Ort", "") are passed over. The last
// recognised slot's index is the required column index.
DelimitedColumns IdentifyColumns(const std::array<std::string, 10>& slots);

// What the attributes of the dialog tell the conversion.
struct DelimitedAttributes {
  std::string order;      // cboHOrder
  std::string technique;  // cboHTech
};

enum class LineResult { kRecord, kSkipped, kStop };

// Converts one line (split at `delimiter` after capitalising it). kRecord sets `record` to the HH
// line without its CR LF; kSkipped for a line with too few columns or a PID not 6 characters long;
// kStop for a line with no delimiter at all, which ends the conversion. An agency column replaces
// `agency` for this and all later lines. A missing PID or designation column throws
// RuntimeFailure "Subscript out of range" at the first line that gets that far.
LineResult ConvertDelimitedLine(std::string_view line, std::string_view delimiter, const DelimitedColumns& columns,
                                const DelimitedAttributes& attributes, std::string& agency, std::string& record);

}  // namespace benchlog

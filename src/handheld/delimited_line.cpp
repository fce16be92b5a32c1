#include "handheld/delimited_line.hpp"

#include <vector>

#include "common/dates.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "handheld/hh_record.hpp"
#include "handheld/packed_angle.hpp"

namespace benchlog {
namespace {

std::optional<std::size_t>* ItemOf(DelimitedColumns& columns, std::string_view prefix, bool& recognised) {
  recognised = true;
  if (prefix == "PID") return &columns.pid;
  if (prefix == "Poi") return &columns.pointNumber;
  if (prefix == "Des") return &columns.designation;
  if (prefix == "Dat") return &columns.date;
  if (prefix == "E/W") return &columns.lonHemisphere;
  if (prefix == "N/S") return &columns.latHemisphere;
  if (prefix == "Lat") return &columns.latitude;
  if (prefix == "Lon") return &columns.longitude;
  if (prefix == "GPS") return &columns.gpsSuitable;
  if (prefix == "Age") return &columns.agency;
  recognised = prefix == "Oth";
  return nullptr;
}

std::string ValueOr(const std::vector<std::string_view>& fields, const std::optional<std::size_t>& column,
                    std::string fallback) {
  return column && *column < fields.size() ? std::string(fields[*column]) : fallback;
}

// The columns that the record cannot do without: an unset one fails as an array look-up would.
std::string_view Required(const std::vector<std::string_view>& fields, const std::optional<std::size_t>& column) {
  if (!column || *column >= fields.size()) throw SubscriptOutOfRange();
  return fields[*column];
}

// `text` with a to z capitalised, as UCase writes it.
void Capitals(std::string_view text, std::string& out) {
  out.assign(text);
  for (char& c : out)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
}

// The pieces of `text` between the separators, as SplitViews cuts them.
void SplitInto(std::string_view text, std::string_view separator, std::vector<std::string_view>& parts) {
  parts.clear();
  std::size_t pos = 0;
  for (auto hit = text.find(separator); hit != std::string_view::npos && !separator.empty();
       hit = text.find(separator, pos)) {
    parts.push_back(text.substr(pos, hit - pos));
    pos = hit + separator.size();
  }
  parts.push_back(text.substr(pos));
}

}  // namespace

DelimitedColumns IdentifyColumns(const std::array<std::string, 10>& slots) {
  DelimitedColumns columns;
  for (std::size_t slot = 0; slot < slots.size(); ++slot) {
    const std::string prefix = Left(slots[slot], 3);
    bool recognised = false;
    if (prefix == "LL ") {
      columns.latitude = columns.longitude = slot;
      recognised = true;
    } else if (auto* item = ItemOf(columns, prefix, recognised)) {
      *item = slot;
    }
    if (recognised) columns.required = slot;
  }
  return columns;
}

LineResult ConvertDelimitedLine(std::string_view line, std::string_view delimiter, const DelimitedColumns& columns,
                                const DelimitedAttributes& attributes, std::string& agency, std::string& record) {
  // A file is converted a line at a time: the capitals and the fields reuse their buffers.
  thread_local std::string upper;
  thread_local std::vector<std::string_view> fields;
  Capitals(line, upper);
  SplitInto(upper, delimiter, fields);
  if (fields.size() - 1 < columns.required) return LineResult::kSkipped;

  LineAngles angles;
  angles.latitude = ValueOr(fields, columns.latitude, "");
  angles.longitude = ValueOr(fields, columns.longitude, "");
  angles.latHemisphere = ValueOr(fields, columns.latHemisphere, "N");
  angles.lonHemisphere = ValueOr(fields, columns.lonHemisphere, "W");
  if (columns.agency) agency = ValueOr(fields, columns.agency, agency);
  // The date is read into its form and not used in the record.
  if (columns.date) (void)DateTextToYyyymmdd(ValueOr(fields, columns.date, ""));

  if (columns.latitude && columns.latitude == columns.longitude) SplitCombined(angles.latitude, angles);
  TakeHemispheres(angles);
  angles.latitude = PackLatitude(angles.latitude);
  angles.longitude = PackLongitude(angles.longitude);
  CutAngles(attributes.order, attributes.technique, angles);

  if (fields.size() == 1) return LineResult::kStop;
  const std::string_view pid = Required(fields, columns.pid);
  if (pid.size() != 6) return LineResult::kSkipped;
  record = FormatHhRecord({std::string(pid), std::string(Required(fields, columns.designation)), angles.latHemisphere + angles.latitude,
                           angles.lonHemisphere + angles.longitude, HhQuality(attributes.technique), agency});
  return LineResult::kRecord;
}

}  // namespace benchlog

#include "session/index_record.hpp"

#include "common/fit.hpp"
#include "common/number_text.hpp"
#include "common/text.hpp"

namespace benchlog {
namespace {

// Nine digits with leading zeros (more when the value needs them), as the pattern "000000000" writes it.
std::string NineDigits(std::uint64_t value) {
  std::string digits = std::to_string(value);
  if (digits.size() < 9) digits.insert(0, 9 - digits.size(), '0');
  return digits;
}

}  // namespace

std::string FormatIndexRecord(const IndexRecord& r) {
  std::string out;
  out.reserve(kIndexRecordLength);
  const auto field = [&out](std::string_view value) { out.append(value).push_back(' '); };
  field(r.Pid);
  field(r.HorzOrder);
  field(r.VertOrder);
  field(r.Latitude);
  field(r.Longitude);
  const auto fitted = [&out](std::string_view value, std::size_t width) {
    AppendFitToWidth(out, value, width);
    out.push_back(' ');
  };
  fitted(r.Designation, kDesignationColumn.length);
  fitted(r.County, kCountyColumn.length);
  for (const std::string* flag : {&r.TidalFlag, &r.BaseNetFlag, &r.AirportFlag, &r.CorsFlag, &r.SatelliteFlag,
                                  &r.HeightModFlag, &r.StabilityCode, &r.PhotoFlag, &r.SketchFlag, &r.FirstYear,
                                  &r.LastYear, &r.ConditionCode})
    field(*flag);
  fitted(r.RecoveredBy, kRecoveredByColumn.length);
  field(NineDigits(r.DescriptionOffset));
  out.push_back('|');
  return out;
}

std::string SentinelRecord(std::uint64_t datasetLength) {
  return Space(kDescriptionOffsetColumn.start - 1) + NineDigits(datasetLength) + " |";
}

std::string IndexField(std::string_view record, IndexColumn column) { return Mid(record, column.start, column.length); }

std::uint64_t RecordOffset(std::string_view record) {
  const double value = Val(IndexField(record, kDescriptionOffsetColumn));
  return value > 0 ? static_cast<std::uint64_t>(value) : 0;
}

}  // namespace benchlog

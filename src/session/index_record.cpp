#include "session/index_record.hpp"

#include "common/fit.hpp"
#include "common/format.hpp"
#include "common/number_text.hpp"
#include "common/text.hpp"

namespace benchlog {
namespace {

std::string NineDigits(std::uint64_t value) { return Format(static_cast<double>(value), "000000000"); }

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
  field(FitToWidth(r.Designation, kDesignationColumn.length));
  field(FitToWidth(r.County, kCountyColumn.length));
  for (const std::string* flag : {&r.TidalFlag, &r.BaseNetFlag, &r.AirportFlag, &r.CorsFlag, &r.SatelliteFlag,
                                  &r.HeightModFlag, &r.StabilityCode, &r.PhotoFlag, &r.SketchFlag, &r.FirstYear,
                                  &r.LastYear, &r.ConditionCode})
    field(*flag);
  field(FitToWidth(r.RecoveredBy, kRecoveredByColumn.length));
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

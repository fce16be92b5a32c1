#pragma once
// IndexRecord: the fixed-width text line the index keeps for one Description, 145 characters with
// one blank between fields, and the sentinel record that ends the index with the dataset's length.
// Readers everywhere take a record's fields by column with IndexField().
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace benchlog {

// A field of a record: its 1-based first column and its width.
struct IndexColumn {
  std::size_t start;
  std::size_t length;
};

inline constexpr IndexColumn kPidColumn{1, 6};
inline constexpr IndexColumn kHorzOrderColumn{8, 1};
inline constexpr IndexColumn kVertOrderColumn{10, 1};
inline constexpr IndexColumn kLatitudeColumn{12, 14};
inline constexpr IndexColumn kLongitudeColumn{27, 15};
inline constexpr IndexColumn kDesignationColumn{43, 30};
inline constexpr IndexColumn kCountyColumn{74, 23};
inline constexpr IndexColumn kTidalFlagColumn{98, 1};
inline constexpr IndexColumn kBaseNetFlagColumn{100, 1};
inline constexpr IndexColumn kAirportFlagColumn{102, 1};
inline constexpr IndexColumn kCorsFlagColumn{104, 1};
inline constexpr IndexColumn kSatelliteFlagColumn{106, 1};
inline constexpr IndexColumn kHeightModFlagColumn{108, 1};
inline constexpr IndexColumn kStabilityCodeColumn{110, 1};
inline constexpr IndexColumn kPhotoFlagColumn{112, 1};
inline constexpr IndexColumn kSketchFlagColumn{114, 1};
inline constexpr IndexColumn kFirstYearColumn{116, 4};
inline constexpr IndexColumn kLastYearColumn{121, 4};
inline constexpr IndexColumn kConditionCodeColumn{126, 1};
inline constexpr IndexColumn kRecoveredByColumn{128, 6};
inline constexpr IndexColumn kDescriptionOffsetColumn{135, 9};

inline constexpr std::size_t kIndexRecordLength = 145;

// The working fields of one Description while the index is built. Values are kept as the
// dataset gives them: `Latitude`, `Longitude`, the years and the codes are raw slices (a short
// line gives a shorter value, which shifts the later columns of the record); `Designation`,
// `County` and `RecoveredBy` are fitted to their width when the record is made.
struct IndexRecord {
  std::string Pid;  // empty until a PID line was read
  std::string HorzOrder = " ";
  std::string VertOrder = " ";
  std::string Latitude = std::string(14, ' ');
  std::string Longitude = std::string(15, ' ');
  std::string Designation = std::string(30, ' ');
  std::string County = std::string(23, ' ');
  std::string TidalFlag = " ";
  std::string BaseNetFlag = " ";
  std::string AirportFlag = " ";
  std::string CorsFlag = " ";
  std::string SatelliteFlag = " ";
  std::string HeightModFlag = " ";
  std::string StabilityCode = " ";
  std::string PhotoFlag = " ";
  std::string SketchFlag = " ";
  std::string FirstYear = "    ";
  std::string LastYear = "    ";
  std::string ConditionCode = " ";
  std::string RecoveredBy = std::string(6, ' ');
  std::uint64_t DescriptionOffset = 0;  // 1-based byte position of the header line
};

// The record text: the fields in column order with one blank between them, the offset as nine
// digits with leading zeros, then " |". 145 characters when every raw field has its width.
std::string FormatIndexRecord(const IndexRecord& record);

// The last line of an index: 134 blanks, the dataset's length in bytes as nine digits, " |".
std::string SentinelRecord(std::uint64_t datasetLength);

// A field of a record by column; shorter or empty when the record is.
std::string IndexField(std::string_view record, IndexColumn column);

// The number in a record's DescriptionOffset columns (0 when blank or absent).
std::uint64_t RecordOffset(std::string_view record);

}  // namespace benchlog

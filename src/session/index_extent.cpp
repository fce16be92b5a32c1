#include "session/index_extent.hpp"

#include <string_view>

#include "common/number_text.hpp"
#include "common/text.hpp"

namespace benchlog {
namespace {

void Widen(double value, double& low, double& high) {
  if (value == 0) return;
  if (value < low) low = value;
  if (value > high) high = value;
}

}  // namespace

double RecordDegrees(std::string_view record, std::size_t degrees, std::size_t degreeWidth) {
  const std::size_t minutes = degrees + degreeWidth + 1;
  return Val(Mid(record, degrees, degreeWidth)) + Val(Mid(record, minutes, 2)) / 60 +
         Val(Mid(record, minutes + 3, 8)) / 3600;
}

IndexExtentDegrees IndexExtent(const MarkIndex& markIndex) {
  IndexExtentDegrees extent;
  for (const auto& record : markIndex.Elements()) {
    Widen(RecordDegrees(record, 12, 2), extent.minLatitude, extent.maxLatitude);
    Widen(RecordDegrees(record, 27, 3), extent.minLongitude, extent.maxLongitude);
  }
  return extent;
}

}  // namespace benchlog

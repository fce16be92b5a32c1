#include "support_files/towns_file.hpp"

#include "common/number_text.hpp"
#include "common/text.hpp"

namespace benchlog {
namespace {

double Degrees(std::string_view line, std::size_t degreesAt, std::size_t degreesLength) {
  const std::size_t minutesAt = degreesAt + degreesLength;
  return Val(Mid(line, degreesAt, degreesLength)) + Val(Mid(line, minutesAt, 2)) / 60.0 +
         Val(Mid(line, minutesAt + 2, 2)) / 3600.0;
}

}  // namespace

TownLine ReadTownLine(std::string_view line) {
  TownLine town;
  town.name = Trim(Left(line, 28));
  town.latitude = Degrees(line, 30, 2);
  town.longitude = Degrees(line, 36, 3);
  return town;
}

bool TownInExtent(const TownLine& town, double minLatitude, double minLongitude, double maxLatitude,
                  double maxLongitude) {
  return town.latitude > minLatitude && town.latitude < maxLatitude && town.longitude > minLongitude &&
         town.longitude < maxLongitude;
}

}  // namespace benchlog

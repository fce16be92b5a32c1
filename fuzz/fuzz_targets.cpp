#include "fuzz_targets.hpp"

namespace benchlog::fuzz {

std::span<const FuzzTarget> FuzzTargets() {
  static constexpr FuzzTarget kTargets[] = {
      {"mark_index", FuzzMarkIndex}, {"description", FuzzDescription}, {"mark_list", FuzzMarkList},
      {"service_answer", FuzzServiceAnswer}, {"delimited", FuzzDelimited}, {"gpx", FuzzGpx},
      {"garmin", FuzzGarmin}, {"angle_text", FuzzAngleText}, {"country", FuzzCountry},
      {"towns", FuzzTowns}, {"zone_table", FuzzZoneTable},
  };
  return kTargets;
}

}  // namespace benchlog::fuzz

// The zone table: the input is the file, its last line names the zone looked up (columns 1-5 and
// 7-10), and the line found is projected through as the export does with every mark.
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "fuzz_input.hpp"
#include "fuzz_targets.hpp"
#include "geodesy/lambert.hpp"
#include "geodesy/oblique_mercator.hpp"
#include "geodesy/transverse_mercator.hpp"
#include "support_files/zone_table_file.hpp"

namespace benchlog::fuzz {
namespace {

constexpr Ellipsoid kGrs80{6378137.0, 0.00669438002290, 0.00669438002290 / (1 - 0.00669438002290)};

void Project(std::string_view zoneLine) {
  constexpr double kLatitude = 0.68, kLongitude = 1.35;  // radians, about 39 N 77 W
  double north = 0, east = 0, convergence = 0, scale = 0, latitude = 0, longitude = 0;
  LambertZoneConstants lambert;
  LambertForward(kGrs80, lambert, zoneLine, kLatitude, kLongitude, north, east, convergence, scale);
  ObliqueForward(kGrs80, zoneLine, kLatitude, kLongitude, north, east, convergence, scale);
  TmForward(kGrs80, zoneLine, kLatitude, kLongitude, north, east, convergence, scale);
  TmInverse(kGrs80, zoneLine, latitude, longitude, north, east, convergence, scale);
}

}  // namespace

int FuzzZoneTable(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = AsText(data, size);
  const std::vector<std::string_view> lines = InputLines(text);
  const std::string_view last = lines.empty() ? std::string_view() : lines.back();
  WriteScratchFile(kZoneTableFile, text);
  std::string zoneLine;
  try {
    FindZoneLine(Left(last, 5), Mid(last, 7, 4), zoneLine, ScratchFolder());
    Project(zoneLine);
  } catch (const RuntimeFailure&) {
  }
  return 0;
}

}  // namespace benchlog::fuzz

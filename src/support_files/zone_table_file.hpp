#pragma once
// The zone table "Zones.txt" in the support folder: one state plane zone a line (its columns in
// geodesy/zone_line.hpp). The table is never kept in memory: each lookup reads the file from its
// start.
#include <string>

namespace benchlog {

inline constexpr const char* kZoneTableFile = "Zones.txt";

// Reads `supportPath` + "Zones.txt" from its start and sets `line` to the first line whose columns
// 1-5 equal `zoneKey` or whose columns 7-10 equal `zoneNumber` (either may match; an empty text
// matches nothing). With no match `line` is empty. Throws RuntimeFailure
// "File not found" when the table is absent.
void FindZoneLine(const std::string& zoneKey, const std::string& zoneNumber, std::string& line,
                  const std::string& supportPath);

}  // namespace benchlog

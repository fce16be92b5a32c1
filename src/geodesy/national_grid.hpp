#pragma once
// The national grid spatial address of a UTM position: zone, latitude band, 100 km square letters
// and the digits of east and north, as in "18SUJ2339407395".
#include <cstdint>
#include <string>

namespace benchlog {

// Builds the address of UTM (`east`, `north`) in metres in zone `zoneText` ("01" to "60"; any
// other text gives no square letters) for a latitude of magnitude `latitude` (radians) in the
// hemisphere `hemisphere` ("S" south, anything else north). `precision` 1000, 100, 10 or 1 metres
// adds 2 to 5 digits of each coordinate; any other value adds none. The bands have no top clamp,
// and north of each 1,500,000 m of every 2,000,000 m the rows of the even zones run on past "V"
// ("W", "X" ...) where the military grid wraps to "A". `errorText` is set to empty at the end.
void NationalGridAddress(const std::string& hemisphere, double latitude, const std::string& zoneText, double east,
                         double north, std::int16_t precision, std::string& address, std::string& errorText);

}  // namespace benchlog

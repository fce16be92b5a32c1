#pragma once
// The ladder of view widths: level 1 is 655,360 metres wide and each level halves the width, down
// to 40 metres at level 15. Each level has its spacing of the latitude and longitude ticks.
#include <cstdint>
#include <optional>

namespace benchlog {

inline constexpr std::int16_t kMaxZoomLevel = 15;

// 10 times 2 to the power (17 - level), metres.
double ViewWidth(int level);

// The level whose band holds `width`: over 327,680 is 1, 163,840 up to 327,680 is 2, and so on down
// to level 14 below 80. The lower end of each band is exclusive and a width exactly on a limit lies
// in no band, so nothing is returned for it.
std::optional<std::int16_t> LevelOfWidth(double width);

// Tick spacing in seconds of arc at `level` (1 to 14); nothing for any other level, which keeps the
// spacing it had.
std::optional<std::int16_t> TickSecondsOf(int level);

// Widens the width or the height of a view so that it has the client area's proportions: with the
// aspect client height / client width, a view that the client's height limits gets the width
// height / aspect, any other the height width x aspect. Throws RuntimeFailure "Division by zero"
// for a view of no height or width (one mark, or marks on one line) and "Overflow" for 0 / 0.
void FitToClient(double& width, double& height, double clientWidth, double clientHeight);

}  // namespace benchlog

// Angle texts: the reading of an angle typed or stored as text, written back in every form, the
// packed-angle test, and the angles found in a Description's free text.
#include "common/runtime_failure.hpp"
#include "fuzz_input.hpp"
#include "fuzz_targets.hpp"
#include "geodesy/angle_text.hpp"
#include "handheld/text_positions.hpp"

namespace benchlog::fuzz {

int FuzzAngleText(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = AsText(data, size);
  std::string angleText(text), errorText, written;
  double radians = 0;
  try {
    DmsToRad(angleText, radians, errorText);
    if (errorText.empty())
      for (std::int16_t format = kDmsPointed; format <= kDmsSymbols; ++format)
        RadToDms(radians, written, format, 5, format % 2 == 0, format == kDmsPacked);
  } catch (const RuntimeFailure&) {
  }
  try {
    (void)IsPackedAngle(text, 90);
    (void)IsPackedAngle(text, 180);
  } catch (const RuntimeFailure&) {  // the number reading's Overflow, trapped by the command as a message
  }
  std::string latitude, longitude;
  (void)FindPositionInText(text, latitude, longitude);
  return 0;
}

}  // namespace benchlog::fuzz

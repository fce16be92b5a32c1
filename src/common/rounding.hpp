#pragma once
// Rounding to whole numbers: a half goes to the even neighbour. The 16- and 32-bit conversions fail
// with Overflow outside their range, as the classic integer types do.
#include <cstdint>

namespace benchlog {

double RoundHalfEven(double value);
std::int16_t CInt(double value);  // throws RuntimeFailure Overflow outside -32768..32767
std::int32_t CLng(double value);  // throws RuntimeFailure Overflow outside the 32-bit range
// Checked 16-bit arithmetic for counters that the classic code keeps in 16-bit integers.
std::int16_t AddInt16(std::int16_t a, std::int16_t b);

}  // namespace benchlog

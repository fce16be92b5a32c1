#include "common/rounding.hpp"

#include <cmath>

#include "common/runtime_failure.hpp"

namespace benchlog {

double RoundHalfEven(double value) { return std::nearbyint(value); }  // default mode: to nearest, ties even

std::int16_t CInt(double value) {
  const double rounded = RoundHalfEven(value);
  if (!(rounded >= -32768.0 && rounded <= 32767.0)) throw Overflow();
  return static_cast<std::int16_t>(rounded);
}

std::int32_t CLng(double value) {
  const double rounded = RoundHalfEven(value);
  if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0)) throw Overflow();
  return static_cast<std::int32_t>(rounded);
}

std::int16_t AddInt16(std::int16_t a, std::int16_t b) {
  const int sum = a + b;
  if (sum < -32768 || sum > 32767) throw Overflow();
  return static_cast<std::int16_t>(sum);
}

}  // namespace benchlog

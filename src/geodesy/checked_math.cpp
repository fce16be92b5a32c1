#include "geodesy/checked_math.hpp"

#include <cmath>

#include "common/runtime_failure.hpp"

namespace benchlog {

double Quotient(double a, double b) {
  if (b == 0.0) throw a == 0.0 ? Overflow() : DivisionByZero();
  return Finite(a / b);
}

double Root(double x) {
  if (x < 0.0) throw InvalidProcedureCall();
  return Finite(std::sqrt(x));
}

double Logarithm(double x) {
  if (!(x > 0.0)) throw InvalidProcedureCall();
  return Finite(std::log(x));
}

double Finite(double x) {
  if (!std::isfinite(x)) throw Overflow();
  return x;
}

}  // namespace benchlog

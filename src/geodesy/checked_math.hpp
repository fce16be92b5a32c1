#pragma once
// Floating-point steps that fail the way the classic run time does, instead of running on with an
// infinity or a NaN: the geodetic routines trap these failures or let them rise to their callers.
namespace benchlog {

// a / b; throws RuntimeFailure "Division by zero" for b = 0 (and a not 0), "Overflow" for 0 / 0 or
// a quotient beyond the double range.
double Quotient(double a, double b);
// Square root; throws "Invalid procedure call or argument" below 0.
double Root(double x);
// Natural logarithm; throws "Invalid procedure call or argument" at 0 or below.
double Logarithm(double x);
// The value itself; throws "Overflow" when it is infinite or not a number.
double Finite(double x);

}  // namespace benchlog

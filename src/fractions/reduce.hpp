// The reduction of a fraction shown in two text fields: trial division by every
// divisor from 2 up to half the bottom, each to exhaustion. Divisors above half the
// bottom are never tried, so 5/5 stays 5/5 while 4/4 becomes 1/1.
#pragma once

#include <string>

namespace tessarine {

// Magnitudes of a fraction, as floats.
struct FractionMagnitudes {
  double top;
  double bottom;
};

// Divides x and y (both 0 or above) by every divisor i from 2 to the integer of
// y / 2 while the integers of both are divisible by i, and returns what is left.
// The divisors found are the prime factors of the greatest common divisor within
// that limit, so only those are tried: a bottom near 2^31 takes microseconds.
FractionMagnitudes ReduceMagnitudes(double x, double y);

// Reduces the fraction top_text / bottom_text in place (both read with Val and
// written back with Str of a float). A negative fraction keeps its minus on the top.
// Serves both the calculator's result and the decimal conversion's result.
void reduce(std::string& top_text, std::string& bottom_text);

}  // namespace tessarine

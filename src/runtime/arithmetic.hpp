// Arithmetic primitives under the names the program's logic uses. They follow the
// C library, infinities and not-a-numbers included: those reach the display as
// errors, so nothing here guards a domain.
#pragma once

#include <cmath>
#include <cstdint>

namespace tessarine {

inline double Abs(double x) {
  return std::fabs(x);
}
inline double Sqrt(double x) {
  return std::sqrt(x);
}
inline double Exp(double x) {
  return std::exp(x);
}
inline double Pow(double x, double y) {
  return std::pow(x, y);
}
inline double Log(double x) {
  return std::log(x);
}
inline double Sin(double x) {
  return std::sin(x);
}
inline double Cos(double x) {
  return std::cos(x);
}
inline double Tan(double x) {
  return std::tan(x);
}
inline double ASin(double x) {
  return std::asin(x);
}
inline double ACos(double x) {
  return std::acos(x);
}
inline double ATan(double x) {
  return std::atan(x);
}
inline double Floor(double x) {
  return std::floor(x);
}
inline double Ceil(double x) {
  return std::ceil(x);
}
// Nearest whole number; a tie goes away from zero.
inline double Round(double x) {
  return std::round(x);
}

}  // namespace tessarine

namespace tessarine {

// A float assigned to an integer keeps its whole part. Out of range saturates,
// and not-a-number gives 0, rather than the undefined behaviour of a bare cast.
inline std::int64_t WholePart(double x) {
  if (std::isnan(x)) return 0;
  if (x >= 9.2e18) return INT64_MAX;
  if (x <= -9.2e18) return INT64_MIN;
  return static_cast<std::int64_t>(x);
}

}  // namespace tessarine

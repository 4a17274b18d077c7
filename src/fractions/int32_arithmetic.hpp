// The 32-bit integer work of the fractions tab: a float taken to an integer, and
// products and sums that wrap around as the program's integers do.
#pragma once

#include <cmath>
#include <cstdint>

namespace tessarine {

// A float assigned to a 32-bit integer keeps its whole part; beyond the range it
// saturates and not-a-number gives 0, the same reading as the preferences store's.
inline std::int32_t ToInt32(double x) {
  if (std::isnan(x)) return 0;
  if (x >= 2147483647.0) return INT32_MAX;
  if (x <= -2147483648.0) return INT32_MIN;
  return static_cast<std::int32_t>(x);
}

// Sums and products wrap modulo 2^32 with no overflow check, done in unsigned
// arithmetic so that the wrap is defined.
inline std::int32_t WrapAdd(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}
inline std::int32_t WrapSub(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}
inline std::int32_t WrapMul(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b));
}
// -(-2147483648) is -2147483648 again.
inline std::int32_t WrapNeg(std::int32_t a) {
  return static_cast<std::int32_t>(0u - static_cast<std::uint32_t>(a));
}

}  // namespace tessarine

// The reduction loop written out step by step as the window runs it, to hold the fast
// reduce against: every divisor from 2 to half the bottom, each to exhaustion. Its
// cost is linear in the bottom, so callers keep their bottoms small.
#pragma once

#include <cstdint>
#include <string>

#include "fractions/int32_arithmetic.hpp"
#include "runtime/arithmetic.hpp"
#include "runtime/numbers.hpp"

namespace tessarine::literal {

inline void LiteralReduce(std::string& top_text, std::string& bottom_text) {
  const std::int32_t top = ToInt32(Val(top_text));
  const std::int32_t bottom = ToInt32(Val(bottom_text));
  double x = Abs(Val(top_text));
  double y = Abs(Val(bottom_text));
  const std::int32_t limit = ToInt32(y / 2.0);
  for (std::int64_t i = 2; i <= limit; ++i) {
    while (ToInt32(x) % i == 0 && ToInt32(y) % i == 0) {
      x = x / static_cast<double>(i);
      y = y / static_cast<double>(i);
    }
  }
  if ((top > 0 && bottom < 0) || (top < 0 && bottom >= 1)) x = x * -1.0;
  top_text = Str(x);
  bottom_text = Str(y);
}

}  // namespace tessarine::literal

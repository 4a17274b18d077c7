// Rounding to a 32-bit float, the width every statistic is stored at.
#pragma once

namespace tessarine::statistics {

// A 64-bit value rounded to the nearest 32-bit float; beyond the float range it
// becomes an infinity, as the statistics expect of huge values.
inline float Single(double x) {
  return static_cast<float>(x);
}

}  // namespace tessarine::statistics

// A clock standing still at a chosen moment, for the cookie tests.
#pragma once

#include "runtime/platform/clock.hpp"

namespace tessarine::testing {

class FixedClock final : public Clock {
 public:
  CivilTime now{2024, 6, 15, 12, 0, 0};
  std::int64_t Ticks() const override { return 0; }
  std::int64_t Microseconds() const override { return 0; }
  CivilTime Now() const override { return now; }
  std::string ShortDate(const CivilTime&) const override { return ""; }
  std::string ShortTime(const CivilTime&) const override { return ""; }
};

}  // namespace tessarine::testing

// The clock the program reads: ticks since start and the wall-clock time, with the
// user's short date and time forms. A headless clock runs on virtual time.
#pragma once

#include <cstdint>
#include <string>

namespace tessarine {

// A moment of local civil time.
struct CivilTime {
  int year = 1904, month = 1, day = 1, hour = 0, minute = 0, second = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;
  // Sixtieths of a second since the program started.
  virtual std::int64_t Ticks() const = 0;
  // Microseconds since the program started (for timers and yields).
  virtual std::int64_t Microseconds() const = 0;
  // Local wall-clock time now.
  virtual CivilTime Now() const = 0;
  // The user's short forms of a date and of a time of day.
  virtual std::string ShortDate(const CivilTime& t) const = 0;
  virtual std::string ShortTime(const CivilTime& t) const = 0;
};

}  // namespace tessarine

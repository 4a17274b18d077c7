// Runs the program's timers. The host calls Fire on the timer when it is due; a
// single-shot timer disarms itself before it fires.
#pragma once

#include <cstdint>

namespace tessarine {

class Timer;

class TimerHost {
 public:
  virtual ~TimerHost() = default;
  // (Re)starts the timer's countdown of period_ms from now.
  virtual void Arm(Timer& timer, std::int64_t period_ms) = 0;
  virtual void Disarm(Timer& timer) = 0;
};

}  // namespace tessarine

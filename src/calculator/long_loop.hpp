// LongLoop: what a long calculation does at each round to stay responsive. It
// yields to the event loop (so the window stays drawn and timers run) once every
// few thousand rounds, not at each, since a yield costs far more than a round;
// and it reads the abort chord from the platform's cached key state, which costs
// two virtual calls.
#pragma once

#include <cstdint>

#include "runtime/platform/platform.hpp"

namespace tessarine {

class LongLoop {
 public:
  // A round costs a few nanoseconds: 4096 of them are well under a millisecond, so
  // the platform is offered a yield far more often than the 50 ms a drawn window needs.
  static constexpr std::uint32_t kRoundsPerYield = 4096;

  explicit LongLoop(Platform& platform) : platform_(platform) {}

  bool AbortChordDown() const {
    return platform_.keyboard.AsyncCommandKey() && platform_.keyboard.AsyncKeyDown(kPeriodKeyCode);
  }

  void Round() {
    if (++rounds_ % kRoundsPerYield == 0) platform_.desktop.Yield();
  }

 private:
  Platform& platform_;
  std::uint32_t rounds_ = 0;
};

}  // namespace tessarine

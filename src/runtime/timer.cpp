#include "runtime/timer.hpp"

#include "runtime/window.hpp"

namespace tessarine {

Timer::Timer(Window& owner, std::string name, int period_ms, int mode)
    : owner_(owner), name_(std::move(name)), period_ms_(period_ms) {
  SetMode(mode);
}

Timer::~Timer() {
  owner_.GetPlatform().timers.Disarm(*this);
}

void Timer::SetMode(int mode) {
  mode_ = (mode == kSingle || mode == kMultiple) ? mode : kOff;
  Rearm();
}

void Timer::SetPeriod(int period_ms) {
  period_ms_ = period_ms;
  if (mode_ != kOff) Rearm();
}

void Timer::Rearm() {
  auto& host = owner_.GetPlatform().timers;
  if (mode_ == kOff)
    host.Disarm(*this);
  else
    host.Arm(*this, period_ms_ < 1 ? 1 : period_ms_);
}

void Timer::Fire() {
  if (mode_ == kOff) return;
  if (mode_ == kSingle) SetMode(kOff);
  if (Action) owner_.Dispatch(name_ + "_Action", Action);
}

}  // namespace tessarine

// A Timer belongs to a window and raises its Action when its period has passed.
// Mode 0 is off, 1 fires once and turns itself off, 2 repeats. Setting Mode to 1
// or 2, or a new Period while running, starts the countdown afresh.
#pragma once

#include <functional>
#include <string>

namespace tessarine {

class Window;

class Timer {
 public:
  static constexpr int kOff = 0, kSingle = 1, kMultiple = 2;

  Timer(Window& owner, std::string name, int period_ms, int mode);
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;
  ~Timer();

  const std::string& Name() const { return name_; }
  int Mode() const { return mode_; }
  void SetMode(int mode);
  int Period() const { return period_ms_; }
  void SetPeriod(int period_ms);

  std::function<void()> Action;

  // Called by the timer host when the period has passed.
  void Fire();

 private:
  void Rearm();
  Window& owner_;
  std::string name_;
  int period_ms_;
  int mode_ = kOff;
};

}  // namespace tessarine

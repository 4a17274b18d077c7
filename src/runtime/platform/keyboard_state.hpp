// What the keyboard holds down, as the logic asks it: at this moment ("Async") or
// as it was for the event being handled. Long loops poll the abort chord at every
// round, so a poll is a plain read of this cached state; the platform keeps it
// current, at each key event and at each yield of a long loop.
#pragma once

namespace tessarine {

// Hardware key code of the period key, as the program's logic asks for it.
inline constexpr int kPeriodKeyCode = 47;

class KeyboardState {
 public:
  struct Held {
    bool control = false;
    bool command = false;  // on Linux, the Ctrl key too (docs/keyboard.md)
    bool option = false;
    bool shift = false;
    bool period = false;
  };

  virtual ~KeyboardState() = default;

  bool AsyncControlKey() const { return held_.control; }
  bool AsyncCommandKey() const { return held_.command; }
  bool AsyncOptionKey() const { return held_.option; }
  bool AsyncShiftKey() const { return held_.shift; }
  bool AsyncKeyDown(int code) const { return code == kPeriodKeyCode && held_.period; }
  // Whether Option was down for the event now being handled.
  bool OptionKey() const { return held_.option; }

 protected:
  void SetHeld(const Held& held) { held_ = held; }
  const Held& CurrentHeld() const { return held_; }

 private:
  Held held_;
};

}  // namespace tessarine

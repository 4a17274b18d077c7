// What the keyboard holds down, asked at the moment of the question ("Async") or
// as it was for the event being handled. The abort chord of long loops polls this
// at every round, so implementations answer from a cached state, never a round
// trip to the window system.
#pragma once

namespace tessarine {

// Hardware key code of the period key, as the program's logic asks for it.
inline constexpr int kPeriodKeyCode = 47;

class KeyboardState {
 public:
  virtual ~KeyboardState() = default;
  virtual bool AsyncControlKey() const = 0;
  virtual bool AsyncCommandKey() const = 0;
  virtual bool AsyncOptionKey() const = 0;
  virtual bool AsyncShiftKey() const = 0;
  virtual bool AsyncKeyDown(int code) const = 0;
  // Whether Option was down for the event now being handled.
  virtual bool OptionKey() const = 0;
};

}  // namespace tessarine

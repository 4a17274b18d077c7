// Push: a key on screen goes down and up for 7 ticks when the keyboard presses it.
#include "calculator/calc_window.hpp"

namespace tessarine {

void CalcWindow::Push(Control& key) {
  key.SetValue(true);
  // About 117 ms, yielding so that the key is drawn down and timers run meanwhile.
  const std::int64_t start = platform_.clock.Ticks();
  while (platform_.clock.Ticks() - start < 7) platform_.desktop.Yield();
  key.SetValue(false);
  // A plain push button's Push raises its action; a key's does not.
  if (key.Kind() == ControlKind::PushButton && key.events.Action) key.events.Action();
}

}  // namespace tessarine

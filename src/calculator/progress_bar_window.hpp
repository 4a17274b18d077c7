// ProgressBarWindow: the sheet shown over the main window while C(n,k) runs a
// long loop, with a bar and the chord that aborts it.
#pragma once

#include "runtime/window.hpp"

namespace tessarine {

// What the user presses to abort a long calculation, as the message names it.
inline constexpr const char* kAbortChordName = "Ctrl + period";

class ProgressBarWindow final : public Window {
 public:
  explicit ProgressBarWindow(Platform& platform);

  Control& CalculatingProgressBar;

 protected:
  void Event_Open() override;
};

}  // namespace tessarine

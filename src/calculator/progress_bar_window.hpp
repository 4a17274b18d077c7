// ProgressBarWindow: the sheet shown over the main window while C(n,k) runs a
// long loop, with a bar and the chord that aborts it.
#pragma once

#include "runtime/window.hpp"
#include "settings/app_context.hpp"

namespace tessarine {

// What the user presses to abort a long calculation, as the message names it.
inline constexpr const char* kAbortChordName = "Ctrl + period";

class ProgressBarWindow final : public Window {
 public:
  explicit ProgressBarWindow(Platform& platform);
  static constexpr const char* kName = "ProgressBarWindow";

  Control& CalculatingProgressBar;

 protected:
  void Event_Open() override;
};

// Shows the sheet over the main window, made anew if it is not open.
ProgressBarWindow& ShowProgressBarWindow(AppContext& app);
// Takes the sheet away, if it shows.
void CloseProgressBarWindow(AppContext& app);

}  // namespace tessarine

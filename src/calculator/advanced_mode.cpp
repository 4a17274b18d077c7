// Simple and advanced mode: a small window with the keypad alone, or a wide one
// with the tab pages beside it. Modes hide nothing; the simple window is only
// too small to show the tabs.
#include "calculator/calc_window.hpp"
#include "calculator/smooth_resize.hpp"

namespace tessarine {

void CalcWindow::ButtonShowAdvancedFeaturesAction() {
  PlayNumberSound();
  // Both spellings are meant for the speech engine.
  SpeakButton(ShowAdvancedFeatures ? "Switching to simpul moad." : "Switching to advanst moad.");
  ShowAdvancedFeatures = !ShowAdvancedFeatures;
  ToggleAdvancedFeatures();
}

void CalcWindow::ToggleAdvancedFeatures() {
  if (ShowAdvancedFeatures) {
    SmoothResize(*this, 535, 290, Anchor::BottomLeft);
    ShowAdvancedFeaturesButton.SetCaption("LESS");
    ToggleTrigButtonsTimer.SetMode(Timer::kMultiple);
  } else {
    platform_.desktop.ClearFocus();  // a field behind the narrowed edge must not keep the keys
    SmoothResize(*this, 171, globals_.ShowMemoryButtons ? 272 : 249, Anchor::BottomLeft);
    ShowAdvancedFeaturesButton.SetCaption("MORE...");
    ToggleTrigButtonsTimer.SetMode(Timer::kOff);
  }
}

}  // namespace tessarine

// The error state: the one place where the keypad locks. Entered on an overflow,
// a not-a-number or a failed function; left only by clear or a statistics input.
#include "calculator/calc_window.hpp"

namespace tessarine {

void CalcWindow::ErrorHasOccurred(bool is_error, const std::string& message) {
  if (is_error) {
    if (globals_.UseErrorSound) PlayErrorSound();
    Display.SetText("Error.");
    MessageText.SetText(message);
    MessageText.SetVisible(true);
  } else {
    MessageText.SetVisible(false);
  }
  for (Control* control : error_state_controls_) control->SetEnabled(!is_error);
}

}  // namespace tessarine

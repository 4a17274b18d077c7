#include "statistics/probability_error_windows.hpp"

#include "statistics/probability_calculator.hpp"
#include "statistics/probability_window.hpp"
#include "statistics/sheets.hpp"

namespace tessarine::statistics {

namespace {

// The caution icon, the message and the OK button, as both sheets lay them out.
Control& AddErrorControls(Window& window, const char* text_name, std::string_view text,
                          const char* button_name) {
  window.AddControl(ControlDesign::At("CautionIcon", ControlKind::Canvas, 14, 14, 32, 32));
  window.AddControl(ControlDesign::At(text_name, ControlKind::Label, 62, 14, 224, 80, text));
  window.SetBounds(0, 0, 300, 136);
  return window.AddControl(
      ControlDesign::At(button_name, ControlKind::PushButton, 206, 104, 80, 20, "OK"));
}

}  // namespace

InputErrorWindow::InputErrorWindow(AppContext& app)
    : Window(app.platform, kName, "Tessarine User Error"), app_(app) {
  AddErrorControls(*this, "InputErrorText", kInputErrorText, "InputErrorCloseButton")
      .events.Action = [this] { CloseSheet(app_, *this); };
}

EpsilonErrorWindow::EpsilonErrorWindow(AppContext& app)
    : Window(app.platform, kName, "Tessarine User Error"), app_(app) {
  AddErrorControls(*this, "EpsilonErrorText", kEpsilonErrorText, "EpsilonErrorCloseButton")
      .events.Action = [this] {
    ShowSheet<ProbabilityWindow>(app_, ProbabilityWindow::kName);
    CloseSheet(app_, *this);
  };
}

}  // namespace tessarine::statistics

#include "conversion/currency_error_window.hpp"

namespace tessarine {

CurrencyErrorWindow::CurrencyErrorWindow(Platform& platform) : Window(platform, kName, "Untitled") {
  // The caution icon's canvas is drawn by the front end; the logic only places it.
  AddControl(ControlDesign::At("CautionIcon2", ControlKind::Canvas, 26, 31, 40, 40));
  AddControl(
      ControlDesign::At("ErrorText", ControlKind::Label, 80, 24, 222, 85, kRateUnavailableText));
  AddControl(
      ControlDesign::At("InputErrorCloseButton", ControlKind::PushButton, 122, 106, 80, 20, "OK"))
      .events.Action = [this] { InputErrorCloseButton_Action(); };
  SetBounds(0, 0, 319, 146);
}

void CurrencyErrorWindow::Event_Open() {
  platform_.feedback.Beep();
}

void CurrencyErrorWindow::InputErrorCloseButton_Action() {
  Close();
  platform_.desktop.CloseWindow(Name());
}

CurrencyErrorWindow& ShowCurrencyErrorWindow(AppContext& app) {
  const bool showing = app.windows.FindOpen(CurrencyErrorWindow::kName) != nullptr;
  auto& window = app.windows.Instance<CurrencyErrorWindow>(CurrencyErrorWindow::kName);
  if (!showing) app.platform.desktop.ShowWindow(window.Name(), true);
  return window;
}

}  // namespace tessarine

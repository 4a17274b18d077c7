#include "conversion/version_update_error_window.hpp"

namespace tessarine {

VersionUpdateErrorWindow::VersionUpdateErrorWindow(Platform& platform)
    : Window(platform, kName, "Untitled") {
  // The caution icon's canvas is drawn by the front end; the logic only places it.
  AddControl(ControlDesign::At("Canvas2", ControlKind::Canvas, 20, 20, 48, 48));
  AddControl(ControlDesign::At(
      "ErrorMessage", ControlKind::Label, 84, 14, 270, 56,
      "Error: Could not connect to server. Currency exchange rates have not been updated."));
  AddControl(ControlDesign::At("ButtonClose", ControlKind::PushButton, 274, 80, 80, 20, "OK"))
      .events.Action = [this] { ButtonClose_Action(); };
  SetBounds(0, 0, 370, 113);
}

void VersionUpdateErrorWindow::Event_Open() {
  platform_.feedback.Beep();
}

void VersionUpdateErrorWindow::ButtonClose_Action() {
  Close();
  platform_.desktop.CloseWindow(Name());
}

VersionUpdateErrorWindow& ShowNetworkError(AppContext& app, const std::string& message) {
  const bool showing = app.windows.FindOpen(VersionUpdateErrorWindow::kName) != nullptr;
  auto& window = app.windows.Instance<VersionUpdateErrorWindow>(VersionUpdateErrorWindow::kName);
  window.Get("ErrorMessage").SetText("Error: " + message);
  if (!showing) app.platform.desktop.ShowWindow(window.Name(), true);
  return window;
}

}  // namespace tessarine

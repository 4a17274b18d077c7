#include "calculator/progress_bar_window.hpp"

#include <string>

namespace tessarine {

ProgressBarWindow::ProgressBarWindow(Platform& platform)
    : Window(platform, kName),
      CalculatingProgressBar(
          (AddControl(ControlDesign::At("CalculatingText", ControlKind::Label, 20, 14, 259, 20,
                                        "Calculating...")),
           AddControl(ControlDesign::At("CalculatingProgressBar", ControlKind::ProgressBar, 20, 40,
                                        259, 16, "")))) {
  AddControl(ControlDesign::At("ProgressBarMessage", ControlKind::Label, 20, 66, 259, 20,
                               "Press Command + period to abort."));
  SetBounds(0, 0, 299, 100);
}

void ProgressBarWindow::Event_Open() {
  // The design text names a Mac key; the message names the chord of this keyboard.
  Get("ProgressBarMessage").SetText(std::string("Press ") + kAbortChordName + " to abort.");
}

ProgressBarWindow& ShowProgressBarWindow(AppContext& app) {
  const bool showing = app.windows.FindOpen(ProgressBarWindow::kName) != nullptr;
  auto& window = app.windows.Instance<ProgressBarWindow>(ProgressBarWindow::kName);
  if (!showing) app.platform.desktop.ShowWindow(window.Name(), true);
  return window;
}

void CloseProgressBarWindow(AppContext& app) {
  Window* window = app.windows.FindOpen(ProgressBarWindow::kName);
  if (!window) return;
  window->Close();
  app.platform.desktop.CloseWindow(window->Name());
}

}  // namespace tessarine

#include "calculator/progress_bar_window.hpp"

#include <string>

namespace tessarine {

namespace {

ControlSpec Spec(const char* name, ControlKind kind, int left, int top, int width, int height,
                 const char* text) {
  ControlSpec spec;
  spec.name = name;
  spec.kind = kind;
  spec.left = left;
  spec.top = top;
  spec.width = width;
  spec.height = height;
  spec.text = text;
  return spec;
}

}  // namespace

ProgressBarWindow::ProgressBarWindow(Platform& platform)
    : Window(platform, "ProgressBarWindow"),
      CalculatingProgressBar(
          (AddControl(Spec("CalculatingText", ControlKind::Label, 20, 14, 259, 20,
                           "Calculating...")),
           AddControl(Spec("CalculatingProgressBar", ControlKind::ProgressBar, 20, 40, 259, 16,
                           "")))) {
  AddControl(Spec("ProgressBarMessage", ControlKind::Label, 20, 66, 259, 20,
                  "Press Command + period to abort."));
  SetBounds(0, 0, 299, 100);
}

void ProgressBarWindow::Event_Open() {
  // The design text names a Mac key; the message names the chord of this keyboard.
  Get("ProgressBarMessage").SetText(std::string("Press ") + kAbortChordName + " to abort.");
}

}  // namespace tessarine

// The keypad's side of the paper tape: the lines the keys write, and showing the
// tape window.
#include "calculator/calc_window.hpp"
#include "calculator/tape_window.hpp"
#include "runtime/text.hpp"
#include "settings/preference_keys.hpp"

namespace tessarine {

bool CalcWindow::TapeIsOn() {
  // Asking the switch makes the tape window if it does not exist yet.
  return GetTapeWindow(app_).TapeOnButton.IsDown();
}

void CalcWindow::AppendToTape(const std::string& text) {
  // Always at the end, whatever the user selected: the caret goes there first.
  Control& field = GetTapeWindow(app_).TapeEditField;
  field.SetSelStart(Len(field.Text()));
  field.SetSelText(text);
}

void CalcWindow::WriteToTape(const std::string& mark) {
  if (TapeIsOn()) AppendToTape(Padded(Result) + mark + CR);
}

void CalcWindow::ShowTape() {
  MenuBar& bar = app_.menu_bar;
  bar.SetText(bar.Item("FileTapeControlMenu"), "Hide Tape");
  TapeWindow& tape = GetTapeWindow(app_);
  tape.SetBounds(globals_.TapeWindowLeftPosition, globals_.TapeWindowTopPosition, tape.Width(),
                 globals_.TapeWindowHeight);
  tape.SetVisible(true);
  WritePref(app_.prefs, prefs::TapeVisible, true);
}

void CalcWindow::SaveTapePlace() {
  if (TapeWindow* tape = ExistingTapeWindow(app_)) tape->Event_Moved();
}

}  // namespace tessarine

// The keypad's side of the paper tape: the lines the keys write, and showing the
// tape window.
#include "calculator/calc_window.hpp"
#include "calculator/tape_window.hpp"
#include "shell/program.hpp"
#include "shell/tessarine_app.hpp"

namespace tessarine {

bool CalcWindow::TapeIsOn() {
  // Asking the switch makes the tape window if it does not exist yet.
  return program_.GetTapeWindow().TapeOnButton.IsDown();
}

void CalcWindow::AppendToTape(const std::string& text) {
  Control& field = program_.GetTapeWindow().TapeEditField;
  field.SetText(field.Text() + text);  // always at the end, whatever the selection
}

void CalcWindow::WriteToTape(const std::string& mark) {
  if (TapeIsOn()) AppendToTape(Padded(Result) + mark + CR);
}

void CalcWindow::ShowTape() {
  MenuBar& bar = program_.App().GetMenuBar();
  bar.SetText(bar.Item("FileTapeControlMenu"), "Hide Tape");
  TapeWindow& tape = program_.GetTapeWindow();
  tape.SetBounds(globals_.TapeWindowLeftPosition, globals_.TapeWindowTopPosition, tape.Width(),
                 globals_.TapeWindowHeight);
  tape.SetVisible(true);
  program_.Prefs().SetBooleanValue("TapeVisible", true, true);
}

void CalcWindow::SaveTapePlace() {
  if (TapeWindow* tape = program_.ExistingTapeWindow()) tape->Event_Moved();
}

}  // namespace tessarine

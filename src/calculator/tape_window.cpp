#include "calculator/tape_window.hpp"

#include <algorithm>

#include "calculator/calc_window.hpp"
#include "runtime/text.hpp"
#include "shell/program.hpp"

namespace tessarine {

TapeWindow::TapeWindow(Program& program)
    : Window(program.GetPlatform(), "TapeWindow"),
      TapeEditField(
          AddControl(ControlSpec::At("TapeEditField", ControlKind::TextArea, 0, 0, 205, 218, ""))),
      TapeOnButton(AddControl(
          ControlSpec::At("TapeOnButton", ControlKind::RadioButton, 8, 224, 44, 20, "On"))),
      TapeOffButton(AddControl(
          ControlSpec::At("TapeOffButton", ControlKind::RadioButton, 56, 224, 44, 20, "Off"))),
      program_(program) {
  AddControl(
      ControlSpec::At("ClearTapeButton", ControlKind::PushButton, 130, 223, 67, 22, "Clear"));
  SetVisible(false);  // it exists from the first write on, shown or not
  SetBounds(program.Globals().TapeWindowLeftPosition, program.Globals().TapeWindowTopPosition, 205,
            program.Globals().TapeWindowHeight);
  LayOut();
  TapeEditField.events.DropObject = [this](const std::vector<std::string>& paths) {
    TapeEditField_DropObject(paths);
  };

  PrefsModule& prefs = program.Prefs();
  TapeOnButton.events.Action = [&prefs] { prefs.SetBooleanValue("TapeOn", true, true); };
  TapeOffButton.events.Action = [&prefs] { prefs.SetBooleanValue("TapeOn", false, true); };
  TapeEditField.events.TextChange = [this] {
    // Every change, by the user or by a write.
    if (CalcWindow* calc = program_.ExistingCalcWindow()) calc->TextHasChanged = true;
    program_.TapeChanged = true;
  };
  Get("ClearTapeButton").events.Action = [this] {
    TapeEditField.SetText("");
    if (CalcWindow* calc = program_.ExistingCalcWindow()) calc->TextHasChanged = false;
  };
}

void TapeWindow::Event_Open() {
  const GlobalStuff& globals = program_.Globals();
  SetBounds(globals.TapeWindowLeftPosition, globals.TapeWindowTopPosition, 205,
            std::max(globals.TapeWindowHeight, MinimumHeight()));
  LayOut();
  const CalcWindow* calc = program_.ExistingCalcWindow();
  if (calc && calc->TapeOnAtStartup)
    TapeOnButton.SetValue(true);
  else
    TapeOffButton.SetValue(true);
}

void TapeWindow::Event_Moved() {
  GlobalStuff& globals = program_.Globals();
  globals.TapeWindowLeftPosition = Left();
  globals.TapeWindowTopPosition = Top();
  globals.TapeWindowHeight = Height();
}

void TapeWindow::UserMoved(int left, int top) {
  SetBounds(left, top, Width(), Height());
  Event_Moved();
}

void TapeWindow::UserResized(int, int height) {
  SetBounds(Left(), Top(), 205, std::max(height, MinimumHeight()));
  LayOut();
  Event_Moved();
}

void TapeWindow::LayOut() {
  // The field fills the window above a row of buttons at the foot.
  const int foot = Height() - 26;
  TapeEditField.SetBounds(0, 0, 205, foot - 6);
  for (Control* button : {&TapeOnButton, &TapeOffButton, &Get("ClearTapeButton")})
    button->SetBounds(button->Left(), foot - (button == &TapeOnButton || button == &TapeOffButton ? 0 : 1),
                      button->Width(), button->Height());
}

void TapeWindow::TapeEditField_DropObject(const std::vector<std::string>& paths) {
  for (const std::string& path : paths) {
    // A file that can't be read is passed over.
    if (const auto text = GetPlatform().files.ReadFile(path))
      TapeEditField.SetText(TapeEditField.Text() + *text + Chr(13));
  }
}

}  // namespace tessarine

#include "calculator/tape_window.hpp"

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
            globals.TapeWindowHeight);
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

void TapeWindow::TapeEditField_DropObject(const std::vector<std::string>& paths) {
  for (const std::string& path : paths) {
    // A file that can't be read is passed over.
    if (const auto text = GetPlatform().files.ReadFile(path))
      TapeEditField.SetText(TapeEditField.Text() + *text + Chr(13));
  }
}

}  // namespace tessarine

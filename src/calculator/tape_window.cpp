#include "calculator/tape_window.hpp"

#include <algorithm>

#include "calculator/calc_window.hpp"
#include "runtime/text.hpp"
#include "settings/preference_keys.hpp"

namespace tessarine {

TapeWindow& GetTapeWindow(AppContext& app) {
  return app.windows.Instance<TapeWindow>(TapeWindow::kName);
}

TapeWindow* ExistingTapeWindow(const AppContext& app) {
  return app.windows.Existing<TapeWindow>(TapeWindow::kName);
}

TapeWindow::TapeWindow(AppContext& app)
    : Window(app.platform, kName, "Tessarine Tape"),
      TapeEditField(AddControl(
          ControlDesign::At("TapeEditField", ControlKind::TextArea, 0, 0, 205, 218, ""))),
      TapeOnButton(AddControl(
          ControlDesign::At("TapeOnButton", ControlKind::RadioButton, 8, 224, 44, 20, "On"))),
      TapeOffButton(AddControl(
          ControlDesign::At("TapeOffButton", ControlKind::RadioButton, 56, 224, 44, 20, "Off"))),
      app_(app) {
  AddControl(
      ControlDesign::At("ClearTapeButton", ControlKind::PushButton, 130, 223, 67, 22, "Clear"));
  SetVisible(false);  // it exists from the first write on, shown or not
  SetBounds(app.globals.TapeWindowLeftPosition, app.globals.TapeWindowTopPosition, 205,
            app.globals.TapeWindowHeight);
  LayOut();
  TapeEditField.events.DropObject = [this](const std::vector<std::string>& paths) {
    TapeEditField_DropObject(paths);
  };

  PrefsModule& prefs = app.prefs;
  TapeOnButton.events.Action = [&prefs] { WritePref(prefs, prefs::TapeOn, true); };
  TapeOffButton.events.Action = [&prefs] { WritePref(prefs, prefs::TapeOn, false); };
  TapeEditField.events.TextChange = [this] {
    // Every change, by the user or by a write.
    app_.globals.TapeChanged = true;
  };
  Get("ClearTapeButton").events.Action = [this] { TapeEditField.SetText(""); };
}

void TapeWindow::Event_Open() {
  const GlobalStuff& globals = app_.globals;
  SetBounds(globals.TapeWindowLeftPosition, globals.TapeWindowTopPosition, 205,
            std::max(globals.TapeWindowHeight, MinimumHeight()));
  LayOut();
  const auto* calc = app_.windows.Existing<CalcWindow>(CalcWindow::kName);
  if (calc && calc->TapeOnAtStartup)
    TapeOnButton.SetValue(true);
  else
    TapeOffButton.SetValue(true);
}

void TapeWindow::Event_Moved() {
  GlobalStuff& globals = app_.globals;
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
    button->SetBounds(button->Left(),
                      foot - (button == &TapeOnButton || button == &TapeOffButton ? 0 : 1),
                      button->Width(), button->Height());
}

void TapeWindow::Event_EnableMenuItems(MenuBar& bar) {
  bar.SetEnabled(bar.Item("EditSelectAll"), true);
  // Copy enables itself while the field holds a selection, as a text field's does.
  bar.SetEnabled(bar.Item("EditCopy"), TapeEditField.SelLength() > 0);
}

bool TapeWindow::HandleMenuCommand(MenuBar&, std::string_view name, int) {
  if (StrEq(name, "EditCopy")) return _EditCopy_Action(), true;
  if (StrEq(name, "EditSelectAll")) return _EditSelectAll_Action(), true;
  return false;
}

void TapeWindow::_EditCopy_Action() {
  if (TapeEditField.SelLength() > 0) GetPlatform().clipboard.SetText(TapeEditField.SelText());
}

void TapeWindow::_EditSelectAll_Action() {
  TapeEditField.SetSelStart(0);
  TapeEditField.SetSelLength(Len(TapeEditField.Text()));
}

void TapeWindow::TapeEditField_DropObject(const std::vector<std::string>& paths) {
  for (const std::string& path : paths) {
    // A file that can't be read is passed over.
    if (const auto text = GetPlatform().files.ReadFile(path))
      TapeEditField.SetText(TapeEditField.Text() + *text + Chr(13));
  }
}

}  // namespace tessarine

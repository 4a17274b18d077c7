// The Constants page of the preferences window: a list editor over the arrays of
// the constants. The menu and the store follow only when the window closes.
#include "settings/constants_catalogue.hpp"
#include "shell/preferences_window.hpp"
#include "shell/restore_defaults_windows.hpp"

namespace tessarine {

void PreferencesWindow::MakeConstantsPage() {
  using K = ControlKind;
  const auto add = [this](const char* name, K kind, int left, int top, int width, int height,
                          const char* text, const char* parent) -> Control& {
    ControlDesign design = ControlDesign::At(name, kind, left, top, width, height, text);
    design.parent = parent;
    design.panel_page = kConstants + 1;
    return AddControl(design);
  };
  const char* page = "PreferencesPagePanel";
  const char* list_box = "EditConstantsMenuItemGroupBox";
  const char* new_box = "AddConstantGroupBox";
  add(list_box, K::GroupBox, 12, 78, 341, 190, "Constants", page);
  add("ConstantsListBox", K::Listbox, 22, 98, 240, 130, "", list_box).events.Change = [this] {
    ConstantsListBox_Change();
  };
  add("RemoveConstantButton", K::PushButton, 272, 98, 70, 20, "Remove", list_box).events.Action =
      [this] { RemoveConstantButton_Action(); };
  add("MoveUpButton", K::PushButton, 272, 124, 70, 20, "Up", list_box).events.Action = [this] {
    MoveUpButton_Action();
  };
  add("MoveDownButton", K::PushButton, 272, 150, 70, 20, "Down", list_box).events.Action = [this] {
    MoveDownButton_Action();
  };
  add("ConstantValueLabel", K::Label, 22, 238, 45, 20, "Value:", list_box);
  add("ConstantValueEditField", K::TextField, 70, 238, 192, 22, "", list_box).events.KeyDown =
      [this](const std::string& key) { return ConstantValueEditField_KeyDown(key); };
  add("ChangeValueButton", K::PushButton, 272, 238, 70, 20, "Change", list_box).events.Action =
      [this] { ChangeValueButton_Action(); };
  add(new_box, K::GroupBox, 12, 276, 341, 92, "New Constant", page);
  add("NewMenuItemTextLabel", K::Label, 22, 296, 45, 20, "Name:", new_box);
  add("NewMenuItemNameEditField", K::TextField, 70, 296, 192, 22, "", new_box).events.TextChange =
      [this] { AddConstantEnable(); };
  add("NewMenuItemValueLabel", K::Label, 22, 326, 45, 20, "Value:", new_box);
  add("NewMenuItemValueEditField", K::TextField, 70, 326, 192, 22, "", new_box).events.TextChange =
      [this] { AddConstantEnable(); };
  add("AddConstantButton", K::PushButton, 272, 326, 70, 20, "Add", new_box).events.Action = [this] {
    AddConstantButton_Action();
  };
  add("RestoreDefaultConstantsButton", K::PushButton, 273, 376, 80, 20, "Defaults", page)
      .events.Action = [this] { RestoreDefaultConstantsButton_Action(); };
  for (const char* name : {"RemoveConstantButton", "MoveUpButton", "MoveDownButton",
                           "ChangeValueButton", "AddConstantButton"})
    Get(name).SetEnabled(false);
}

void PreferencesWindow::AddConstantEnable() {
  Get("AddConstantButton")
      .SetEnabled(!Get("NewMenuItemNameEditField").Text().empty() &&
                  !Get("NewMenuItemValueEditField").Text().empty());
}

void PreferencesWindow::UpdateConstantsList() {
  Control& list = Get("ConstantsListBox");
  list.DeleteAllRows();
  for (int i = 0; i < app_.globals.AlteredNumberOfConstants; ++i)
    list.AddRow(app_.globals.ConstantName(i));
}

void PreferencesWindow::AddConstantButton_Action() {
  GlobalStuff& g = app_.globals;
  Control& name = Get("NewMenuItemNameEditField");
  Control& value = Get("NewMenuItemValueEditField");
  if (g.AlteredNumberOfConstants >= kMaxConstants) {
    app_.platform.feedback.Beep();
    app_.platform.desktop.MsgBox(
        "Sorry, but you've reached the maximum allowable number of constants. If you really need "
        "more than 200 constants, please contact Brindley Software to obtain a free version of "
        "Tessarine that can handle additional constants.");
    return;
  }
  g.ConstantName(g.AlteredNumberOfConstants) = name.Text();
  g.ConstantValue(g.AlteredNumberOfConstants) = value.Text();
  ++g.AlteredNumberOfConstants;
  UpdateConstantsList();
  Get("ConstantsListBox").SetListIndex(g.AlteredNumberOfConstants - 1);
  Get("ConstantValueEditField").SetText(value.Text());
  name.SetText("");
  value.SetText("");
}

void PreferencesWindow::ConstantsListBox_Change() {
  const int row = Get("ConstantsListBox").ListIndex();
  if (row < 0) return;
  Get("ConstantValueEditField").SetText(app_.globals.ConstantValue(row));
  for (const char* name : {"RemoveConstantButton", "MoveUpButton", "MoveDownButton"})
    Get(name).SetEnabled(true);
}

bool PreferencesWindow::ConstantValueEditField_KeyDown(const std::string&) {
  if (Get("ConstantsListBox").ListIndex() >= 0) Get("ChangeValueButton").SetEnabled(true);
  return false;
}

void PreferencesWindow::ChangeValueButton_Action() {
  // Without a selected row there is no place to change.
  const int row = Get("ConstantsListBox").ListIndex();
  if (row >= 0) app_.globals.ConstantValue(row) = Get("ConstantValueEditField").Text();
  Get("ChangeValueButton").SetEnabled(false);
}

void PreferencesWindow::RemoveConstantButton_Action() {
  Get("RemoveConstantButton").SetEnabled(false);
  const int row = Get("ConstantsListBox").ListIndex();
  if (row < 0) return;
  GlobalStuff& g = app_.globals;
  for (int i = row; i < g.AlteredNumberOfConstants; ++i) {
    g.ConstantName(i) = g.ConstantName(i + 1);
    g.ConstantValue(i) = g.ConstantValue(i + 1);
  }
  --g.AlteredNumberOfConstants;
  Get("ConstantValueEditField").SetText("");
  UpdateConstantsList();
}

void PreferencesWindow::SwapConstants(int a, int b) {
  GlobalStuff& g = app_.globals;
  std::swap(g.ConstantName(a), g.ConstantName(b));
  std::swap(g.ConstantValue(a), g.ConstantValue(b));
  UpdateConstantsList();
  Get("ConstantsListBox").SetListIndex(b);
}

void PreferencesWindow::MoveUpButton_Action() {
  Get("MoveUpButton").SetEnabled(false);
  const int row = Get("ConstantsListBox").ListIndex();
  if (row > 0 && row < app_.globals.AlteredNumberOfConstants) SwapConstants(row, row - 1);
}

void PreferencesWindow::MoveDownButton_Action() {
  Get("MoveDownButton").SetEnabled(false);
  const int row = Get("ConstantsListBox").ListIndex();
  if (row >= 0 && row < app_.globals.AlteredNumberOfConstants - 1) SwapConstants(row, row + 1);
}

void PreferencesWindow::RestoreDefaultConstantsButton_Action() {
  ShowRestoreConstantsConfirmation(app_);
}

}  // namespace tessarine

// The main window's menu handlers: Copy, Paste and Clear of the Edit menu, and the
// Constants menu's entries.
#include "calculator/calc_window.hpp"
#include "runtime/text.hpp"

namespace tessarine {

void CalcWindow::Event_EnableMenuItems(MenuBar& bar) {
  // Whatever the calculator or the clipboard holds.
  for (const char* name : {"EditClear", "EditCopy", "EditPaste"})
    bar.SetEnabled(bar.Item(name), true);
}

bool CalcWindow::HandleMenuCommand(MenuBar&, std::string_view name, int index) {
  if (StrEq(name, "EditCopy")) return _EditCopy_Action(), true;
  if (StrEq(name, "EditPaste")) return _EditPaste_Action(), true;
  if (StrEq(name, "EditClear")) return _EditClear_Action(), true;
  if (StrEq(name, "MenuConstant")) return _MenuConstant_Action(index), true;
  return false;
}

void CalcWindow::_EditCopy_Action() {
  // The stored double in full, not the text on display.
  platform_.clipboard.SetText(CStr(Result));
}

void CalcWindow::_EditPaste_Action() {
  const auto text = platform_.clipboard.Text();
  if (!text) return;
  Result = CDbl(*text);  // no filter: what CDbl reads of the text
  UpdateDisplay();
  ClearDisplay = false;
  ClearDisplay2 = false;
  SpeakButton(Display.Text());
}

void CalcWindow::_EditClear_Action() {
  // Only the key's flash: the menu's Clear clears nothing.
  Push(Get("ButtonClear"));
}

// The value as the preferences window last left it, though the entry's text may
// still be the old one until that window closes.
void CalcWindow::_MenuConstant_Action(int index) {
  Result = CDbl(globals_.ConstantValue(index));
  UpdateDisplay();
  ClearDisplay = false;
  ClearDisplay2 = false;
}

}  // namespace tessarine

// Ten memory banks. M+, M-, MR and MC don't act at once: each pops up the list of
// banks at the pointer, and the click on a row picks the bank. Red marks in the
// display show which banks were written.
#include "calculator/calc_window.hpp"
#include "runtime/text.hpp"
#include "settings/global_stuff.hpp"

namespace tessarine {

std::string CalcWindow::StorageRowText(int bank) const {
  return (bank == 10 ? std::string("M:") : tessarine::CStr(bank) + ":") +
         Padded(StorageValue(bank));
}

void CalcWindow::OpenStorageMenu(const char* action) {
  // The pointer stands over the list's last row when it opens.
  Control& menu = Get("StorageMenu");
  menu.SetBounds(MouseX() - 15, MouseY() - 105, menu.Width(), menu.Height());
  StorageAction = action;
  menu.SetVisible(true);
  PlayCalculationSound();
  if (globals_.ShowHelpTags) HelpTagsEnabled(false);
}

void CalcWindow::StorageClearButton_Action() {
  PlayCalculationSound();
  if (platform_.keyboard.AsyncOptionKey()) {
    // With Option: every bank cleared at once, without the list.
    Control& menu = Get("StorageMenu");
    for (int i = 1; i <= 10; ++i) {
      StorageValue(i) = 0;
      Item("MemoryLabel", i).SetVisible(false);
      menu.SetRow(i - 1, (i == 10 ? std::string("M") : tessarine::CStr(i)) + ":             0");
    }
    SpeakButton("Memory [[inpt PHON]]klIYr=1[[inpt TEXT]]all.");
    return;
  }
  Control& menu = Get("StorageMenu");
  menu.SetBounds(MouseX() - 15, MouseY() - 105, menu.Width(), menu.Height());
  StorageAction = "Clear";
  menu.SetVisible(true);
}

bool CalcWindow::StorageMenu_CellClick(int row, int, int, int) {
  const int i = row + 1;
  if (StrEq(StorageAction, "Add")) {
    StorageValue(i) = StorageValue(i) + Result;
    Item("MemoryLabel", i).SetVisible(true);  // written, not necessarily non-zero
    SpeakButton("Memory plus");
  } else if (StrEq(StorageAction, "Minus")) {
    StorageValue(i) = StorageValue(i) - Result;
    Item("MemoryLabel", i).SetVisible(true);
    SpeakButton("Memory minus");
  } else if (StrEq(StorageAction, "Recall")) {
    Result = StorageValue(i);
    UpdateDisplay();
    ClearDisplay = false;
    ClearDisplay2 = false;
    SpeakButton("Memory recall");
  } else {
    StorageValue(i) = 0;
    Item("MemoryLabel", i).SetVisible(false);
    SpeakButton("Memory clear");
  }
  Control& menu = Get("StorageMenu");
  menu.SetRow(row, StorageRowText(i));
  menu.SetVisible(false);
  if (globals_.ShowHelpTags) HelpTagsEnabled(true);
  return false;
}

void CalcWindow::StorageMenu_MouseMove(int, int y) {
  // Fixed bands, not the list's own hit test.
  static constexpr int kBandEnds[] = {12, 24, 35, 46, 57, 68, 79, 90, 101};
  int row = 9;
  for (int r = 0; r < 9; ++r) {
    if (y < kBandEnds[r]) {
      row = r;
      break;
    }
  }
  Get("StorageMenu").SetListIndex(row);
}

void CalcWindow::StorageMenu_MouseExit() {
  Get("StorageMenu").SetVisible(false);
  if (globals_.ShowHelpTags) HelpTagsEnabled(true);
}

}  // namespace tessarine

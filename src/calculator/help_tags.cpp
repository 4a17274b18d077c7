// Help tags of the main window's controls: given all at once, or all taken away
// while the memory list is open or when the user switches them off.
#include "calculator/calc_window.hpp"
#include "calculator/help_texts.hpp"

namespace tessarine {

void CalcWindow::HelpTagsEnabled(bool enabled) {
  const std::string_view clear = UseESCforClear ? kButtonClearHelpWithEsc : kButtonClearHelpPlain;
  Get("ButtonClear").SetHelpTag(enabled ? std::string(clear) : std::string());
  for (const HelpText& row : MainWindowHelpTexts()) {
    Control& control = row.index < 0 ? Get(row.control) : Item(row.control, row.index);
    control.SetHelpTag(enabled ? std::string(row.text) : std::string());
  }
}

}  // namespace tessarine

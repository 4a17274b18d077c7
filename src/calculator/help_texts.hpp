// The help texts of the main window's controls, as one table in the order the
// tags are set.
#pragma once

#include <span>
#include <string_view>

namespace tessarine {

// One control's help tag; index -1 for a plain control, else the item of a control array.
struct HelpText {
  std::string_view control;
  int index;
  std::string_view text;
};

// ButtonClear's text names [ESC] only while Escape clears; it is chosen when the tags are set.
extern const std::string_view kButtonClearHelpWithEsc;
extern const std::string_view kButtonClearHelpPlain;

// Every other tagged control of the main window, after ButtonClear.
std::span<const HelpText> MainWindowHelpTexts();

}  // namespace tessarine

// The program's menu bar: File, Edit, Constants, Speech and Help, with every item's
// name, text, shortcut literal and separators in order.
#pragma once

#include <string>
#include <string_view>

#include "runtime/menu_bar.hpp"

namespace tessarine {

void BuildMainMenu(MenuBar& bar);

// The chord a Linux desktop uses for a shortcut literal: "Cmd+T" is Ctrl+T, and
// "Cmd+U" is Ctrl+Shift+U because Ctrl+U rounds up on the keypad.
std::string LinuxShortcut(std::string_view literal);

}  // namespace tessarine

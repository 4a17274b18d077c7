#include "shell/main_window_parts.hpp"

namespace tessarine {

// Each tab page's logic joins here as its subsystem lands, in the order of the tabs.
void AddMainWindowParts(CalcWindow&, AppContext&) {}

}  // namespace tessarine

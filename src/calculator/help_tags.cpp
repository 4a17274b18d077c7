// Help tags of the main window's controls. The tags themselves are not written
// yet; switching them is where they will be given and taken away.
#include "calculator/calc_window.hpp"

namespace tessarine {

// FORWARD CALL: does nothing until the help texts are written.
void CalcWindow::HelpTagsEnabled(bool) {}

}  // namespace tessarine

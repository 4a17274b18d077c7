// The keyboard map: being written.
#include "calculator/calc_window.hpp"

namespace tessarine {

bool CalcWindow::Event_KeyDown(const std::string&) { return false; }

}  // namespace tessarine

// The statistics page's input and delete keys, which the keyboard map also reaches.
// The sample store is not built yet; the keys do nothing until it is.
#include "calculator/calc_window.hpp"

namespace tessarine {

void CalcWindow::ButtonStatsInputAction() {}
void CalcWindow::ButtonStatsDelAction() {}

}  // namespace tessarine

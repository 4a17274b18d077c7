// The statistics page's input and delete keys, which the keyboard map also reaches.
// The page's part owns the samples; the keys forward to it.
#include "calculator/calc_window.hpp"

namespace tessarine {

void CalcWindow::ButtonStatsInputAction() {
  if (StatsInputHandler) StatsInputHandler();
}

void CalcWindow::ButtonStatsDelAction() {
  if (StatsDeleteHandler) StatsDeleteHandler();
}

}  // namespace tessarine

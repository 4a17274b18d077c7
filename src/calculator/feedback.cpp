// Spoken and sounded feedback of the keys. Speech and sounds are not built yet:
// these calls are where they will be given, and the keys already make them in
// their final order.
#include "calculator/calc_window.hpp"

namespace tessarine {

void CalcWindow::SpeakButton(const std::string&) {}
void CalcWindow::SpeakTotal(const std::string&) {}
void CalcWindow::PlayNumberSound() {}
void CalcWindow::PlayCalculationSound() {}
void CalcWindow::PlayResultSound() {}
void CalcWindow::PlayClearSound() {}
void CalcWindow::PlayErrorSound() {}

}  // namespace tessarine

// C(n,k) and P(n,k), armed by their keys as pending two-operand functions. The
// keys and the long loops behind them are not built yet; until then nothing arms
// "Cnk" or "Pnk" and these leave the value as it stands.
#include "calculator/calc_window.hpp"

namespace tessarine {

double CalcWindow::ComputeCombinations() { return Result; }
double CalcWindow::ComputePermutations() { return Result; }

}  // namespace tessarine

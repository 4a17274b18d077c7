// Small decisions of the Stats page and its sheets that the window code only applies.
#pragma once

#include <string>
#include <string_view>

namespace tessarine::statistics {

// True when a key typed into a number field (the sample list, the probability
// fields) is to be swallowed: a printable key that is no digit, "," or ".". Control
// keys pass, and so a minus sign can never be typed.
bool NumberFieldSwallowsKey(std::string_view key);

// The sheets that ShowComputationButton opens from ComputePopUp.
enum class StatsSheet { kNone, kDescriptives, kAnova, kTTest };

// The sheet a press on Show opens, and the word spoken for it.
struct ComputationChoice {
  StatsSheet sheet = StatsSheet::kNone;
  // Spelt for the speech engine; empty for kNone, which plays no sound either.
  std::string spoken;
};

ComputationChoice ChooseComputation(int list_index);

}  // namespace tessarine::statistics

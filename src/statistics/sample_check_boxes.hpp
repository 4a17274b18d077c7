// The ten "Sample N" check boxes that the t-test and ANOVA sheets share.
#pragma once

#include <array>

#include "runtime/window.hpp"

namespace tessarine::statistics {

// Adds SampleNumberCheckBox(0) to (9) in `parent`: two columns of five at the given
// lefts, the boxes of `ticked` on.
void AddSampleCheckBoxes(Window& window, const char* parent, int left_column, int right_column,
                         const std::array<bool, 10>& ticked);

// Which boxes are ticked now, box 0 first.
std::array<bool, 10> TickedSamples(const Window& window);

}  // namespace tessarine::statistics

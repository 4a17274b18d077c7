#include "statistics/sample_check_boxes.hpp"

#include <string>

namespace tessarine::statistics {

void AddSampleCheckBoxes(Window& window, const char* parent, int left_column, int right_column,
                         const std::array<bool, 10>& ticked) {
  constexpr int kTops[5] = {38, 57, 76, 95, 114};
  for (int i = 0; i < 10; ++i) {
    ControlDesign design = ControlDesign::At("SampleNumberCheckBox", ControlKind::CheckBox,
                                             i < 5 ? left_column : right_column, kTops[i % 5], 100,
                                             20, "Sample " + std::to_string(i + 1));
    design.index = i;
    design.parent = parent;
    design.value = ticked[static_cast<std::size_t>(i)] ? 1 : 0;
    window.AddControl(design);
  }
}

std::array<bool, 10> TickedSamples(const Window& window) {
  std::array<bool, 10> ticked{};
  for (int i = 0; i < 10; ++i)
    ticked[static_cast<std::size_t>(i)] = window.Item("SampleNumberCheckBox", i).IsDown();
  return ticked;
}

}  // namespace tessarine::statistics

// The main window's controls as they are when the window is made: name, class,
// parent, place and size in points, design text or rows, and the tab page and
// inner page they live on. The logic finds every control by these names; the
// desktop front end builds a widget for each row at these positions.
#pragma once

#include <string_view>
#include <vector>

#include "runtime/control.hpp"
#include "settings/deployment.hpp"

namespace tessarine {

// The captions of the tab pages of CalcTabSelector, in order.
inline constexpr std::string_view kTabCaptions[] = {"Math", "Convert", "Stats", "Fractions",
                                                    "Expression"};

const std::vector<ControlDesign>& MainWindowControls();

}  // namespace tessarine

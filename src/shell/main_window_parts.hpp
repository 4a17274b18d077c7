// The subsystems' parts of the main window, added to each main window made.
#pragma once

#include "calculator/calc_window.hpp"
#include "settings/app_context.hpp"

namespace tessarine {

void AddMainWindowParts(CalcWindow& window, AppContext& app);

}  // namespace tessarine

// The Stats page's sheets, registered by name with the program's windows.
#pragma once

#include "settings/app_context.hpp"

namespace tessarine::statistics {

void RegisterStatsWindows(AppContext& app);

}  // namespace tessarine::statistics

#include "shell/main_window_parts.hpp"

#include <memory>

#include "conversion/convert_tab.hpp"
#include "expression/expression_tab.hpp"
#include "fractions/fractions_tab.hpp"
#include "shell/update_check_part.hpp"
#include "statistics/stats_tab.hpp"

namespace tessarine {

// Each tab page's logic joins here as its subsystem lands, in the order of the tabs.
void AddMainWindowParts(CalcWindow& window, AppContext& app) {
  window.AddPart(std::make_unique<ConvertTab>(window, app));
  window.AddPart(std::make_unique<statistics::StatsTab>(window, app));
  window.AddPart(std::make_unique<FractionsTab>(window, app));
  window.AddPart(std::make_unique<ExpressionTab>(window, app));
  // Last, so that its check at start-up follows the rate update.
  window.AddPart(std::make_unique<UpdateCheckPart>(window, app));
}

}  // namespace tessarine

#include "statistics/stats_windows.hpp"

#include <memory>

#include "statistics/anova_window.hpp"
#include "statistics/descriptives_window.hpp"
#include "statistics/probability_error_windows.hpp"
#include "statistics/probability_window.hpp"
#include "statistics/stats_error_window.hpp"
#include "statistics/ttest_window.hpp"

namespace tessarine::statistics {

namespace {
template <class T>
void RegisterSheet(AppContext& app) {
  app.windows.Register(T::kName, [&app] { return std::make_unique<T>(app); });
}
}  // namespace

void RegisterStatsWindows(AppContext& app) {
  RegisterSheet<DescriptivesWindow>(app);
  RegisterSheet<ttestWindow>(app);
  RegisterSheet<ANOVAWindow>(app);
  RegisterSheet<ProbabilityWindow>(app);
  RegisterSheet<StatsErrorWindow>(app);
  RegisterSheet<InputErrorWindow>(app);
  RegisterSheet<EpsilonErrorWindow>(app);
}

}  // namespace tessarine::statistics

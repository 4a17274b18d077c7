#include "statistics/stats_page.hpp"

#include "runtime/text.hpp"

namespace tessarine::statistics {

bool NumberFieldSwallowsKey(std::string_view key) {
  return Asc(key) >= 32 && InStr("1234567890,.", key) == 0;
}

ComputationChoice ChooseComputation(int list_index) {
  switch (list_index) {
    case 0:
      return {StatsSheet::kDescriptives, "Descriptives"};
    case 1:
      return {StatsSheet::kAnova, "Anova"};
    case 2:
      return {StatsSheet::kTTest, "teetest"};
    default:
      return {};
  }
}

}  // namespace tessarine::statistics

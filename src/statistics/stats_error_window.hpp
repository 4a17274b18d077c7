// StatsErrorWindow: the sheet that reports a user error of the t-test or ANOVA and
// brings a fresh test sheet back when dismissed.
#pragma once

#include <string>

#include "runtime/window.hpp"
#include "settings/app_context.hpp"

namespace tessarine::statistics {

class StatsErrorWindow final : public Window {
 public:
  explicit StatsErrorWindow(AppContext& app);
  static constexpr const char* kName = "StatsErrorWindow";

  Control& ErrorText;
  // Which sheet to bring back: "ttest", "ANOVA", or empty.
  std::string StatsErrorType;

  void InputErrorCloseButton_Action();
  std::optional<FieldValue> FieldByName(std::string_view name) const override;

 private:
  AppContext& app_;
};

// A user error of a test sheet: beep, the message on the error sheet, then the test
// sheet closes itself.
void ReportStatsError(AppContext& app, Window& test_sheet, const std::string& message,
                      std::string_view error_type);

}  // namespace tessarine::statistics

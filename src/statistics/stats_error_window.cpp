#include "statistics/stats_error_window.hpp"

#include "runtime/text.hpp"
#include "statistics/anova.hpp"
#include "statistics/anova_window.hpp"
#include "statistics/sheets.hpp"
#include "statistics/ttest.hpp"
#include "statistics/ttest_window.hpp"

namespace tessarine::statistics {

StatsErrorWindow::StatsErrorWindow(AppContext& app)
    : Window(app.platform, kName, "Tessarine User Error"),
      ErrorText((AddControl(ControlDesign::At("CautionIcon2", ControlKind::Canvas, 14, 14, 32, 32)),
                 AddControl(ControlDesign::At("ErrorText", ControlKind::Label, 62, 14, 247, 92,
                                              "An unexpected error has occurred (type 101). Please "
                                              "contact Brindley Software and report this bug.")))),
      app_(app) {
  AddControl(
      ControlDesign::At("InputErrorCloseButton", ControlKind::PushButton, 229, 119, 80, 20, "OK"))
      .events.Action = [this] { InputErrorCloseButton_Action(); };
  SetBounds(0, 0, 323, 154);
}

void StatsErrorWindow::InputErrorCloseButton_Action() {
  if (StrEq(StatsErrorType, kTTestErrorType)) ShowSheet<ttestWindow>(app_, ttestWindow::kName);
  if (StrEq(StatsErrorType, kAnovaErrorType)) ShowSheet<ANOVAWindow>(app_, ANOVAWindow::kName);
  StatsErrorType.clear();
  CloseSheet(app_, *this);
}

std::optional<FieldValue> StatsErrorWindow::FieldByName(std::string_view name) const {
  if (StrEq(name, "StatsErrorType")) return FieldValue{StatsErrorType};
  return std::nullopt;
}

void ReportStatsError(AppContext& app, Window& test_sheet, const std::string& message,
                      std::string_view error_type) {
  app.platform.feedback.Beep();
  auto& sheet = app.windows.Instance<StatsErrorWindow>(StatsErrorWindow::kName);
  sheet.ErrorText.SetText(message);
  app.platform.desktop.ShowWindow(sheet.Name(), true);
  sheet.StatsErrorType = std::string(error_type);
  CloseSheet(app, test_sheet);
}

}  // namespace tessarine::statistics

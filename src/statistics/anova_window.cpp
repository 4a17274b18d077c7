#include "statistics/anova_window.hpp"

#include "statistics/anova.hpp"
#include "statistics/sample_check_boxes.hpp"
#include "statistics/sheets.hpp"
#include "statistics/stats_error_window.hpp"
#include "statistics/stats_tab.hpp"

namespace tessarine::statistics {

namespace {
constexpr std::uint32_t kResultColour = 0x003f7f;
}  // namespace

ANOVAWindow::ANOVAWindow(AppContext& app)
    : Window(app.platform, kName, "Tessarine ANOVA"), app_(app) {
  using K = ControlKind;
  AddControl(ControlDesign::At("GroupBox1", K::GroupBox, 13, 18, 155, 75, "Type of ANOVA:"));
  ControlDesign between =
      ControlDesign::At("BetweenButton", K::RadioButton, 20, 42, 130, 20, "Between Groups");
  between.parent = "GroupBox1";
  between.value = 1;
  AddControl(between).SetHelpTag(
      "Choose this option if different subjects were used for each of the groups.");
  ControlDesign within =
      ControlDesign::At("WithinButton", K::RadioButton, 20, 65, 140, 20, "Repeated measures");
  within.parent = "GroupBox1";
  AddControl(within).SetHelpTag(
      "Choose this option if the same subjects were tested repeatedly, once for each condition");
  AddControl(ControlDesign::At("CalculateButton", K::PushButton, 46, 106, 80, 20, "Calculate"))
      .events.Action = [this] { CalculateButton_Action(); };
  AddControl(ControlDesign::At("CloseButton", K::PushButton, 46, 135, 80, 20, "Close"))
      .events.Action = [this] { CloseButton_Action(); };
  AddControl(ControlDesign::At("GroupBox2", K::GroupBox, 183, 18, 216, 123, "Samples to compare:"));
  AddSampleCheckBoxes(*this, "GroupBox2", 191, 295, AnovaChoice{}.ticked);
  ControlDesign result = ControlDesign::At("ANOVAResultText", K::Label, 183, 146, 217, 20,
                                           "ANOVA result will appear here");
  result.visible = false;
  result.text_color = kResultColour;
  AddControl(result);
  SetBounds(0, 0, 424, 180);
}

void ANOVAWindow::CalculateButton_Action() {
  Control& result = Get("ANOVAResultText");
  result.SetText("");
  AnovaChoice choice;
  choice.ticked = TickedSamples(*this);
  choice.between = Get("BetweenButton").IsDown();
  const AnovaOutcome outcome =
      RunAnova(GetStatsTab(app_).Store(), choice,
               [this](const std::string& text) { app_.platform.desktop.MsgBox(text); });
  if (outcome.error != AnovaError::kNone) {
    ReportStatsError(app_, *this, AnovaErrorMessage(outcome.error), kAnovaErrorType);
    return;
  }
  const std::string& separator = app_.platform.decimal_separator;
  result.SetText(AnovaResultText(outcome, separator));
  result.SetVisible(true);
  GetCalcWindow(app_).PlayResultSound();
  AppendResultToTape(app_, AnovaTapeText(outcome, separator));
}

void ANOVAWindow::CloseButton_Action() {
  CloseSheet(app_, *this);
}

}  // namespace tessarine::statistics

#include "statistics/ttest_window.hpp"

#include "statistics/sample_check_boxes.hpp"
#include "statistics/sheets.hpp"
#include "statistics/stats_error_window.hpp"
#include "statistics/stats_tab.hpp"
#include "statistics/ttest.hpp"

namespace tessarine::statistics {

namespace {
constexpr std::uint32_t kResultColour = 0x003f7f;
}  // namespace

ttestWindow::ttestWindow(AppContext& app)
    : Window(app.platform, kName, "Tessarine t-test"), app_(app) {
  using K = ControlKind;
  AddControl(ControlDesign::At("GroupBox1", K::GroupBox, 13, 18, 145, 90, "Type of t-test:"));
  ControlDesign unpaired =
      ControlDesign::At("UnpairedButton", K::RadioButton, 20, 37, 110, 20, "Unpaired");
  unpaired.value = 1;
  AddControl(unpaired);
  AddControl(ControlDesign::At("PairedButton", K::RadioButton, 21, 59, 110, 20, "Paired"));
  ControlDesign one_tailed =
      ControlDesign::At("OneTailedCheckBox", K::CheckBox, 21, 82, 125, 20, "One-tailed");
  one_tailed.parent = "GroupBox1";
  AddControl(one_tailed);
  AddControl(ControlDesign::At("OKButton", K::PushButton, 44, 121, 80, 20, "Calculate"))
      .events.Action = [this] { OKButton_Action(); };
  AddControl(ControlDesign::At("CancelButton", K::PushButton, 44, 150, 80, 20, "Close"))
      .events.Action = [this] { CancelButton_Action(); };
  AddControl(ControlDesign::At("GroupBox2", K::GroupBox, 170, 18, 216, 123, "Samples to compare"));
  AddSampleCheckBoxes(*this, "GroupBox2", 178, 282, TTestChoice{}.ticked);
  ControlDesign result = ControlDesign::At("ttestResultText", K::Label, 171, 146, 217, 20,
                                           "t-test result will appear here");
  result.visible = false;
  result.text_color = kResultColour;
  AddControl(result);
  SetBounds(0, 0, 400, 190);
}

void ttestWindow::OKButton_Action() {
  Control& result = Get("ttestResultText");
  result.SetText("");
  TTestChoice choice;
  choice.ticked = TickedSamples(*this);
  choice.unpaired = Get("UnpairedButton").IsDown();
  choice.one_tailed = Get("OneTailedCheckBox").IsDown();
  const TTestOutcome outcome =
      RunTTest(GetStatsTab(app_).Store(), choice,
               [this](const std::string& text) { app_.platform.desktop.MsgBox(text); });
  if (outcome.error != TTestError::kNone) {
    ReportStatsError(app_, *this, TTestErrorMessage(outcome.error), kTTestErrorType);
    return;
  }
  const std::string& separator = app_.platform.decimal_separator;
  result.SetText(TTestResultText(outcome, separator));
  result.SetVisible(true);
  GetCalcWindow(app_).PlayResultSound();
  AppendResultToTape(app_, TTestTapeText(outcome, separator));
}

void ttestWindow::CancelButton_Action() {
  app_.platform.desktop.ClearFocus();
  CloseSheet(app_, *this);
}

}  // namespace tessarine::statistics

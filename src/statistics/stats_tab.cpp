#include "statistics/stats_tab.hpp"

#include "runtime/exceptions.hpp"
#include "runtime/numbers.hpp"
#include "runtime/text.hpp"
#include "statistics/anova_window.hpp"
#include "statistics/descriptives_window.hpp"
#include "statistics/probability_window.hpp"
#include "statistics/sheets.hpp"
#include "statistics/stats_page.hpp"
#include "statistics/ttest_window.hpp"

namespace tessarine::statistics {

StatsTab::StatsTab(CalcWindow& window, AppContext& app) : window_(window), app_(app) {
  // Both popups start on their first row, before any handler could react to it.
  window.Get("CellNumberPopUp").SetListIndex(0);
  window.Get("ComputePopUp").SetListIndex(0);

  window.StatsInputHandler = [this] { ButtonStatsInputAction(); };
  window.StatsDeleteHandler = [this] { ButtonStatsDelAction(); };
  Control& input = window.Get("ButtonStatsInput");
  input.events.Open = [&input] { input.SetCaption("Input"); };
  Control& del = window.Get("ButtonStatsDel");
  del.events.Open = [&del] { del.SetCaption("Delete"); };
  window.Get("CellNumberPopUp").events.Change = [this] { UpdateStatsEditField(); };
  window.Get("ShowComputationButton").events.Action = [this] { ShowComputationButton_Action(); };
  window.Get("ProbabilityButton").events.Action = [this] { ProbabilityButton_Action(); };

  Control& field = window.Get("StatsEditField");
  field.events.KeyDown = [this](const std::string& key) { return StatsEditField_KeyDown(key); };
  // The list takes the click, then gives the focus back so keys reach the keypad.
  field.events.MouseDown = [](int, int) { return true; };
  field.events.MouseUp = [this](int, int) { app_.platform.desktop.ClearFocus(); };
  field.events.MouseExit = [this] { app_.platform.desktop.ClearFocus(); };
}

int StatsTab::CurrentSample() const {
  return window_.Get("CellNumberPopUp").ListIndex() + 1;
}

void StatsTab::ButtonStatsInputAction() {
  window_.PlayCalculationSound();
  const int sample = CurrentSample();
  // Whatever the display holds is stored, an error's value included.
  store_.Input(sample, CStr(window_.Result, app_.platform.decimal_separator));
  UpdateStatsEditField();
  window_.Result = 0.0;
  window_.StringResult.clear();
  window_.UpdateDisplay();
  window_.Exponent.clear();
  window_.Stored = 0.0;
  window_.Stored2 = 0.0;
  window_.Calculation = "None";
  window_.Calculation2 = "None";
  window_.ClearDisplay2 = false;
  window_.ErrorHasOccurred(false, "0");
  window_.UserIsTypingExponent = false;
  window_.SpeakButton("Input");
}

void StatsTab::ButtonStatsDelAction() {
  window_.PlayClearSound();
  const int sample = CurrentSample();
  if (app_.platform.keyboard.AsyncOptionKey()) {
    store_.Delete(sample, true);
  } else {
    store_.Delete(sample, false);
    UpdateStatsEditField();
  }
  window_.SpeakButton("Delete");
  UpdateStatsEditField();
}

void StatsTab::UpdateStatsEditField() {
  const int sample = CurrentSample();
  Control& field = window_.Get("StatsEditField");
  field.SetText(store_.Count(sample) >= 1 ? store_.ListText(sample) : std::string());
  // A new sample on show makes the next digit start a new number.
  window_.ClearDisplay = true;
  window_.UserIsTypingExponent = false;
}

void StatsTab::ShowComputationButton_Action() {
  const ComputationChoice choice = ChooseComputation(window_.Get("ComputePopUp").ListIndex());
  if (choice.sheet == StatsSheet::kNone) return;
  window_.PlayCalculationSound();
  window_.SpeakButton(choice.spoken);
  switch (choice.sheet) {
    case StatsSheet::kDescriptives:
      ShowSheet<DescriptivesWindow>(app_, DescriptivesWindow::kName);
      break;
    case StatsSheet::kAnova:
      ShowSheet<ANOVAWindow>(app_, ANOVAWindow::kName);
      break;
    case StatsSheet::kTTest:
      ShowSheet<ttestWindow>(app_, ttestWindow::kName);
      break;
    case StatsSheet::kNone:
      break;
  }
}

void StatsTab::ProbabilityButton_Action() {
  ShowSheet<ProbabilityWindow>(app_, ProbabilityWindow::kName);
}

bool StatsTab::StatsEditField_KeyDown(const std::string& key) {
  return NumberFieldSwallowsKey(key);
}

std::optional<FieldValue> StatsTab::FieldByName(std::string_view name) const {
  // The count of the sample on show, for scripts that probe the store's bounds.
  if (StrEq(name, "ArrayCount"))
    return FieldValue{static_cast<std::int64_t>(store_.Count(CurrentSample()))};
  return std::nullopt;
}

StatsTab& GetStatsTab(AppContext& app) {
  StatsTab* tab = app.windows.Instance<CalcWindow>(CalcWindow::kName).Part<StatsTab>();
  if (!tab) throw NilObjectException("the main window has no Stats page");
  return *tab;
}

}  // namespace tessarine::statistics

// StatsTab: the Stats page of the main window: the ten samples, their list, the
// computation sheets and the F probability calculator.
#pragma once

#include <string>

#include "calculator/calc_window.hpp"
#include "calculator/main_window_part.hpp"
#include "settings/app_context.hpp"
#include "statistics/sample_store.hpp"

namespace tessarine::statistics {

class StatsTab final : public MainWindowPart {
 public:
  StatsTab(CalcWindow& window, AppContext& app);

  // The samples; they live as long as the main window and are never saved.
  SampleStore& Store() { return store_; }
  const SampleStore& Store() const { return store_; }
  // The sample the main window's popup selects, 1 to 10.
  int CurrentSample() const;

  void ButtonStatsInputAction();
  void ButtonStatsDelAction();
  void UpdateStatsEditField();
  void ShowComputationButton_Action();
  void ProbabilityButton_Action();
  bool StatsEditField_KeyDown(const std::string& key);

  std::optional<FieldValue> FieldByName(std::string_view name) const override;

 private:
  CalcWindow& window_;
  AppContext& app_;
  SampleStore store_;
};

// The main window's Stats part, for the sheets that read the samples; the main
// window is made if need be.
StatsTab& GetStatsTab(AppContext& app);

}  // namespace tessarine::statistics

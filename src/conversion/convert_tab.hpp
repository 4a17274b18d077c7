// ConvertTab: the logic of the main window's "Convert" page: the category and unit
// popups, the "Convert" key and its answer, the rate table with its age, and what
// the page keeps between runs.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "calculator/calc_window.hpp"
#include "calculator/main_window_part.hpp"
#include "conversion/currency_table.hpp"
#include "settings/app_context.hpp"

namespace tessarine {

class ConvertTab final : public MainWindowPart {
 public:
  ConvertTab(CalcWindow& window, AppContext& app);

  // The rates in force and when they last came from the server; the rate update
  // replaces them, and a conversion reads them at once.
  CurrencyRates Currency;
  std::string CurrencyTimeAndDate;
  std::string CurrencyDate;

  void ConversionCategoryPopup_Change();
  void ConversionFromPopup_Change();
  void ConversionToPopup_Change();
  void ConversionUpdateNowButton_Action();
  bool ConversionResult_MouseDown(int x, int y);
  void ShowHideCurrencyUpdateInfo();

  // Fetches the rates from the server. Not wired to the network yet: does nothing.
  void UpdateCurrencyExchangeRates();

  void Restore(OpenStep step) override;
  void Closing() override;
  std::optional<FieldValue> FieldByName(std::string_view name) const override;

 private:
  void RestoreRates();
  void RestoreChoices();
  void SelectSavedRow(Control& popup, const char* key);

  CalcWindow& window_;
  AppContext& app_;
  Control& CategoryPopup;
  Control& FromPopup;
  Control& ToPopup;
  Control& ResultLabel;
  Control& UpdateCurrencyButton;
  Control& CurrencyConversionInfo;
};

}  // namespace tessarine

// ConvertTab: the logic of the main window's "Convert" page: the category and unit
// popups, the "Convert" key and its answer, the rate table with its age, and what
// the page keeps between runs.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "calculator/calc_window.hpp"
#include "calculator/main_window_part.hpp"
#include "conversion/currency_table.hpp"
#include "http/basic_http.hpp"
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

  // The rate update: the button toggles between a request and its cancel; the page
  // that arrives replaces the table, its dates and the file at once.
  std::unique_ptr<BasicHTTP> BasicHTTPsocket;
  std::string DataBuffer;  // the last page's body; empty while a request runs
  void UpdateCurrencyButton_Action();
  void UpdateCurrencyExchangeRates();
  void BasicHTTPsocket_SockConnected();
  void BasicHTTPsocket_PageReceived(const std::string& page);
  void BasicHTTPsocket_TCPError();
  std::string ExtractValue(std::string_view name) const;

  void Restore(OpenStep step) override;
  void Closing() override;
  void Started(const std::string& now) override;
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

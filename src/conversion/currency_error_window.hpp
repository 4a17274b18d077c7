// CurrencyErrorWindow: the sheet over the main window that says a currency's rate
// is not available, with a beep as it opens and an OK key that closes it.
#pragma once

#include "runtime/window.hpp"
#include "settings/app_context.hpp"

namespace tessarine {

inline constexpr char kRateUnavailableText[] =
    "Error. Exchange rate currently unavailable from the International Monetary Fund server. "
    "Please try again later.";

class CurrencyErrorWindow final : public Window {
 public:
  explicit CurrencyErrorWindow(Platform& platform);
  static constexpr const char* kName = "CurrencyErrorWindow";

  void InputErrorCloseButton_Action();

 protected:
  void Event_Open() override;
};

// Shows the sheet within the main window, made anew if it is not open.
CurrencyErrorWindow& ShowCurrencyErrorWindow(AppContext& app);

}  // namespace tessarine

// DonationRequestWindow: the sheet that asks for a donation at every fiftieth
// launch. It gates nothing; its check box silences it for good.
#pragma once

#include "runtime/window.hpp"
#include "settings/app_context.hpp"

namespace tessarine {

class DonationRequestWindow final : public Window {
 public:
  explicit DonationRequestWindow(AppContext& app);
  static constexpr const char* kName = "DonationRequestWindow";

  void CloseButton_Action();
  void DonateButton_Action();

 protected:
  void Event_Open() override;
  void Event_Close() override;

 private:
  void CloseSheet();
  AppContext& app_;
};

// Shows the reminder as a sheet over the main window.
void ShowDonationRequestWindow(AppContext& app);

}  // namespace tessarine

// VersionUpdateErrorWindow: the small sheet over the main window that tells of a
// network failure (a rate update or an update check), with a beep as it opens.
#pragma once

#include <string>

#include "runtime/window.hpp"
#include "settings/app_context.hpp"

namespace tessarine {

inline constexpr char kRatesNotUpdatedText[] =
    "Could not connect to server. Currency exchange rates were not updated. Please check your "
    "network settings.";

class VersionUpdateErrorWindow final : public Window {
 public:
  explicit VersionUpdateErrorWindow(Platform& platform);
  static constexpr const char* kName = "VersionUpdateErrorWindow";

  void ButtonClose_Action();

 protected:
  void Event_Open() override;
};

// Shows the sheet within the main window with "Error: " and `message` in it.
VersionUpdateErrorWindow& ShowNetworkError(AppContext& app, const std::string& message);

}  // namespace tessarine

// ttestWindow: the sheet that compares two samples, unpaired or paired.
#pragma once

#include "runtime/window.hpp"
#include "settings/app_context.hpp"

namespace tessarine::statistics {

class ttestWindow final : public Window {
 public:
  explicit ttestWindow(AppContext& app);
  static constexpr const char* kName = "ttestWindow";

  void OKButton_Action();
  void CancelButton_Action();

 private:
  AppContext& app_;
};

}  // namespace tessarine::statistics

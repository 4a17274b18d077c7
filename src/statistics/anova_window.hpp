// ANOVAWindow: the sheet that analyses three or more samples, between groups or
// with repeated measures.
#pragma once

#include "runtime/window.hpp"
#include "settings/app_context.hpp"

namespace tessarine::statistics {

class ANOVAWindow final : public Window {
 public:
  explicit ANOVAWindow(AppContext& app);
  static constexpr const char* kName = "ANOVAWindow";

  void CalculateButton_Action();
  void CloseButton_Action();

 private:
  AppContext& app_;
};

}  // namespace tessarine::statistics

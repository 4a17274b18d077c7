// ProbabilityWindow: the small F calculator, with an optional epsilon correction of
// the degrees of freedom.
#pragma once

#include "runtime/window.hpp"
#include "settings/app_context.hpp"

namespace tessarine::statistics {

class ProbabilityWindow final : public Window {
 public:
  explicit ProbabilityWindow(AppContext& app);
  static constexpr const char* kName = "ProbabilityWindow";

  void InputField_TextChange();
  void EpsilonInputField_TextChange();
  void CalculateEnable();
  void CalculateButton_Action();
  void ClearButton_Action();
  void EpsilonCheckBox_Action();
  void ButtonClose_Action();

 private:
  AppContext& app_;
};

}  // namespace tessarine::statistics

// The two user-error sheets of the F calculator: bad inputs and a bad epsilon.
#pragma once

#include "runtime/window.hpp"
#include "settings/app_context.hpp"

namespace tessarine::statistics {

// Dismissed, it only closes itself; the calculator stays as it was.
class InputErrorWindow final : public Window {
 public:
  explicit InputErrorWindow(AppContext& app);
  static constexpr const char* kName = "InputErrorWindow";

 private:
  AppContext& app_;
};

// Dismissed, it brings back a fresh calculator: the one in error closed itself.
class EpsilonErrorWindow final : public Window {
 public:
  explicit EpsilonErrorWindow(AppContext& app);
  static constexpr const char* kName = "EpsilonErrorWindow";

 private:
  AppContext& app_;
};

}  // namespace tessarine::statistics

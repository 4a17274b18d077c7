// DescriptivesWindow: the sheet with the statistics of one sample.
#pragma once

#include "runtime/window.hpp"
#include "settings/app_context.hpp"

namespace tessarine::statistics {

class DescriptivesWindow final : public Window {
 public:
  explicit DescriptivesWindow(AppContext& app);
  static constexpr const char* kName = "DescriptivesWindow";

  void UpdateDescriptives();

 protected:
  void Event_Open() override;

 private:
  AppContext& app_;
};

}  // namespace tessarine::statistics

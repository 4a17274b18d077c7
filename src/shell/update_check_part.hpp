// UpdateCheckPart: the main window's automatic version check at start-up, silent
// unless a newer version is named, and the buffer the manual check fills.
#pragma once

#include <memory>
#include <string>

#include "calculator/calc_window.hpp"
#include "calculator/main_window_part.hpp"
#include "http/basic_http.hpp"
#include "settings/app_context.hpp"

namespace tessarine {

class UpdateCheckPart final : public MainWindowPart {
 public:
  UpdateCheckPart(CalcWindow& window, AppContext& app);

  std::unique_ptr<BasicHTTP> CheckForUpdateSocket;
  std::string DataBuffer2;  // the page the manual check received

  void CheckForUpdateSocket_PageReceived(const std::string& page);
  void CheckForUpdateSocket_TCPError();

  void Started(const std::string& now) override;
  std::optional<FieldValue> FieldByName(std::string_view name) const override;

 private:
  AppContext& app_;
};

}  // namespace tessarine

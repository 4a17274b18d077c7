// AboutWindow: the program's About box: its version, links to the maker's site and
// to the donation page, and the compiler line shown while Command, Control and
// Option are held on the version.
#pragma once

#include <string>

#include "runtime/window.hpp"
#include "settings/app_context.hpp"

namespace tessarine {

inline constexpr const char* kVersionText = "Version 4.5.2";

// "Compiler: " with the name and version of the compiler that built the program,
// "; " and the day of the build as 14-July-2011.
std::string CompilerLine();

class AboutWindow final : public Window {
 public:
  explicit AboutWindow(AppContext& app);
  static constexpr const char* kName = "AboutWindow";

  bool VersionLabel_MouseDown(int x, int y);
  void VersionLabel_MouseUp(int x, int y);
  bool WebSiteURLLabel_MouseDown(int x, int y);
  void WebSiteURLLabel_MouseUp(int x, int y);
  bool PaypalCanvas_MouseDown(int x, int y);
  void PaypalCanvas_MouseUp(int x, int y);
  bool DonationClickerText_MouseDown(int x, int y);
  void DonationClickerText_MouseUp(int x, int y);
  void BrindleyLogoCanvas_MouseUp(int x, int y);
  void DonationRequestText_MouseUp(int x, int y);

 private:
  // A release strictly within the control, not on its edge.
  bool Inside(const char* control, int x, int y) const;
  void OpenIfInside(const char* control, int x, int y, const std::string& url);
  AppContext& app_;
};

// Shows the About box, or brings the open one forward.
void ShowAboutWindow(AppContext& app);

}  // namespace tessarine

#include "shell/about_window.hpp"

#include <array>
#include <cstdlib>
#include <cstring>

#include "calculator/calc_window.hpp"
#include "settings/deployment.hpp"
#include "shell/donation_links.hpp"

namespace tessarine {

namespace {

constexpr std::uint32_t kLinkColor = 0x0000C8;
constexpr std::uint32_t kPressedLinkColor = 0x000000;

std::string CompilerName() {
#if defined(__clang__)
  return "Clang " __clang_version__;
#elif defined(__GNUC__)
  return "GCC " __VERSION__;
#else
  return "an unknown compiler";
#endif
}

// __DATE__ ("Jul 14 2011") as 14-July-2011.
std::string BuildDate() {
  static constexpr std::array<const char*, 12> kMonths = {
      "January", "February", "March",     "April",   "May",      "June",
      "July",    "August",   "September", "October", "November", "December"};
  const char* date = __DATE__;
  std::string month = "?";
  for (std::size_t m = 0; m < kMonths.size(); ++m)
    if (std::strncmp(date, kMonths[m], 3) == 0) month = kMonths[m];
  return std::to_string(std::atoi(date + 4)) + "-" + month + "-" + std::string(date + 7, 4);
}

}  // namespace

std::string CompilerLine() {
  return "Compiler: " + CompilerName() + "; " + BuildDate();
}

AboutWindow::AboutWindow(AppContext& app)
    : Window(app.platform, kName, "About Tessarine"), app_(app) {
  using K = ControlKind;
  auto add = [this](const ControlDesign& design, std::uint32_t color = 0) -> Control& {
    ControlDesign row = design;
    row.text_color = color;
    return AddControl(row);
  };
  add(ControlDesign::At("ProgramLabel", K::Label, 0, 6, 325, 20, "Tessarine™")).events.Open =
      [this] { Get("ProgramLabel").SetText("Tessarine™"); };
  Control& version = add(ControlDesign::At("VersionLabel", K::Label, 0, 27, 325, 20, "Version"));
  version.events.Open = [this] { Get("VersionLabel").SetText(kVersionText); };
  version.events.MouseDown = [this](int x, int y) { return VersionLabel_MouseDown(x, y); };
  version.events.MouseUp = [this](int x, int y) { VersionLabel_MouseUp(x, y); };
  // The canvases' texts name the pictures the front end paints on them.
  Control& logo =
      add(ControlDesign::At("BrindleyLogoCanvas", K::Canvas, 83, 62, 150, 93, "logo2011_150px"));
  logo.events.MouseDown = [](int, int) { return true; };
  logo.events.MouseUp = [this](int x, int y) { BrindleyLogoCanvas_MouseUp(x, y); };
  Control& site = add(
      ControlDesign::At("WebSiteURLLabel", K::Label, 0, 153, 325, 20, std::string(kMakerHostName)),
      kLinkColor);
  site.events.MouseDown = [this](int x, int y) { return WebSiteURLLabel_MouseDown(x, y); };
  site.events.MouseUp = [this](int x, int y) { WebSiteURLLabel_MouseUp(x, y); };
  add(ControlDesign::At("AboutBoxText", K::Label, 20, 177, 285, 52,
                        "For other great products, please visit the Brindley Software web site. "
                        "The Fractions tab owes its arithmetic to the fraction calculator of a "
                        "friend of the project."));
  Control& paypal =
      add(ControlDesign::At("PaypalCanvas", K::Canvas, 132, 229, 62, 31, "PayPalDonate"));
  paypal.events.MouseDown = [this](int x, int y) { return PaypalCanvas_MouseDown(x, y); };
  paypal.events.MouseUp = [this](int x, int y) { PaypalCanvas_MouseUp(x, y); };
  Control& clicker = add(ControlDesign::At("DonationClickerText", K::Label, 0, 257, 325, 20,
                                           "Click here to make a donation"),
                         kLinkColor);
  clicker.events.MouseDown = [this](int x, int y) { return DonationClickerText_MouseDown(x, y); };
  clicker.events.MouseUp = [this](int x, int y) { DonationClickerText_MouseUp(x, y); };
  Control& request = add(ControlDesign::At(
      "DonationRequestText", K::Label, 20, 288, 285, 60,
      "It took hundreds of unpaid hours to create Tessarine. If you find it useful, please "
      "consider supporting its ongoing development by making a small donation to the author."));
  request.events.MouseDown = [](int, int) { return true; };
  request.events.MouseUp = [this](int x, int y) { DonationRequestText_MouseUp(x, y); };
  add(ControlDesign::At("WarningText", K::Label, 0, 355, 325, 30,
                        "Tessarine is freeware, given as it is, without warranty\r"
                        "of any kind. Its maker is not liable for any damage\r"
                        "that comes of its use."));
  SetBounds(0, 0, 325, 394);
}

bool AboutWindow::VersionLabel_MouseDown(int, int) {
  const KeyboardState& keys = app_.platform.keyboard;
  if (!(keys.AsyncCommandKey() && keys.AsyncControlKey() && keys.AsyncOptionKey())) return false;
  Get("VersionLabel").SetText(CompilerLine());
  return true;
}

void AboutWindow::VersionLabel_MouseUp(int, int) {
  Get("VersionLabel").SetText(kVersionText);
}

bool AboutWindow::WebSiteURLLabel_MouseDown(int, int) {
  Get("WebSiteURLLabel").SetTextColor(kPressedLinkColor);
  return true;
}

void AboutWindow::WebSiteURLLabel_MouseUp(int x, int y) {
  Get("WebSiteURLLabel").SetTextColor(kLinkColor);
  OpenIfInside("WebSiteURLLabel", x, y, MakerHomePage());
}

bool AboutWindow::PaypalCanvas_MouseDown(int, int) {
  Get("DonationClickerText").SetTextColor(kPressedLinkColor);
  return true;
}

void AboutWindow::PaypalCanvas_MouseUp(int x, int y) {
  Get("DonationClickerText").SetTextColor(kLinkColor);
  OpenIfInside("PaypalCanvas", x, y, HostedButtonAddress());
}

bool AboutWindow::DonationClickerText_MouseDown(int, int) {
  Get("DonationClickerText").SetTextColor(kPressedLinkColor);
  return true;
}

void AboutWindow::DonationClickerText_MouseUp(int x, int y) {
  Get("DonationClickerText").SetTextColor(kLinkColor);
  OpenIfInside("DonationClickerText", x, y, HostedButtonAddress());
}

void AboutWindow::BrindleyLogoCanvas_MouseUp(int x, int y) {
  OpenIfInside("BrindleyLogoCanvas", x, y, MakerHomePage());
}

void AboutWindow::DonationRequestText_MouseUp(int x, int y) {
  OpenIfInside("DonationRequestText", x, y, HostedButtonAddress());
}

bool AboutWindow::Inside(const char* control, int x, int y) const {
  const Control& c = Get(control);
  return x > 0 && x < c.Width() && y > 0 && y < c.Height();
}

void AboutWindow::OpenIfInside(const char* control, int x, int y, const std::string& url) {
  if (Inside(control, x, y)) app_.platform.desktop.ShowURL(url);
}

void ShowAboutWindow(AppContext& app) {
  auto& window = app.windows.Instance<AboutWindow>(AboutWindow::kName);
  app.platform.desktop.ShowWindow(window.Name(), false);
}

}  // namespace tessarine

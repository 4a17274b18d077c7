// The maker's host name under the keypad: a link that works only with the control
// key held, so that a plain click on the window's foot never opens a browser.
#include "calculator/calc_window.hpp"
#include "settings/deployment.hpp"

namespace tessarine {

bool CalcWindow::BrindleyURL_MouseDown(int, int) {
  if (!platform_.keyboard.AsyncControlKey()) return false;  // no mouse-up follows
  Get("BrindleyURL").SetTextColor(0x0000FF);
  return true;
}

void CalcWindow::BrindleyURL_MouseUp(int x, int y) {
  Control& link = Get("BrindleyURL");
  link.SetTextColor(0x006666);
  // Released on the link itself, not on its edge or beyond.
  if (x > 0 && x < link.Width() && y > 0 && y < link.Height())
    platform_.desktop.ShowURL(MakerHomePage());
}

std::string MakerHomePage() {
  return "http://" + std::string(kMakerHostName) + "/";
}

}  // namespace tessarine

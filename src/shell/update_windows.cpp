#include "shell/update_windows.hpp"

#include "calculator/calc_window.hpp"
#include "conversion/proxy_settings.hpp"
#include "conversion/version_update_error_window.hpp"
#include "shell/update_check_part.hpp"
#include "shell/version_check.hpp"

namespace tessarine {

namespace {
void CloseWindowOf(Window& window, Platform& platform) {
  window.Close();
  platform.desktop.CloseWindow(window.Name());
}
}  // namespace

void ShowUpdateSheet(AppContext& app, const char* name) {
  const bool showing = app.windows.FindOpen(name) != nullptr;
  Window& window = app.windows.Instance(name);
  if (!showing) app.platform.desktop.ShowWindow(window.Name(), true);
}

VersionUpdateWindow::VersionUpdateWindow(AppContext& app)
    : Window(app.platform, kName, "Untitled"), app_(app) {
  AddControl(ControlDesign::At("Canvas1", ControlKind::Canvas, 20, 20, 48, 48));
  AddControl(ControlDesign::At(
      "CheckForUpdateMessage", ControlKind::Label, 84, 14, 350, 40,
      "An Internet connection is required for this function. Click OK to proceed."));
  AddControl(ControlDesign::At("ButtonCancel", ControlKind::PushButton, 258, 86, 80, 20, "Cancel"))
      .events.Action = [this] { ButtonCancel_Action(); };
  AddControl(ControlDesign::At("ButtonOK", ControlKind::PushButton, 352, 86, 80, 20, "OK"))
      .events.Action = [this] { ButtonOK_Action(); };
  ControlDesign status = ControlDesign::At("InternetUpdateStatus", ControlKind::Label, 84, 60, 250,
                                           18, "Connecting to server...");
  status.visible = false;
  AddControl(status);
  ControlDesign arrows =
      ControlDesign::At("CheckForUpdateChasingArrows", ControlKind::ProgressBar, 20, 86, 16, 16);
  arrows.visible = false;
  AddControl(arrows);
  SetBounds(0, 0, 450, 120);

  CheckForUpdateSocket = std::make_unique<BasicHTTP>(app.platform.sockets, app.platform.clock);
  CheckForUpdateSocket->SockConnected = [this] { CheckForUpdateSocket_SockConnected(); };
  CheckForUpdateSocket->PageReceived = [this](const std::string&, const std::string& page, bool) {
    CheckForUpdateSocket_PageReceived(page);
  };
  CheckForUpdateSocket->TCPError = [this](std::int32_t) { CheckForUpdateSocket_TCPError(); };
  // A bad status has no handler: the window stays with its arrows turning.
}

void VersionUpdateWindow::ButtonOK_Action() {
  Get("ButtonOK").SetEnabled(false);
  Get("InternetUpdateStatus").SetVisible(true);
  Get("CheckForUpdateChasingArrows").SetVisible(true);
  ApplyProxySettings(app_.prefs, *CheckForUpdateSocket);
  CheckForUpdateSocket->Get(VersionPageURL(app_.platform));
}

void VersionUpdateWindow::ButtonCancel_Action() {
  CheckForUpdateSocket->Stop();
  Get("CheckForUpdateChasingArrows").SetVisible(false);
  CloseSheet();
}

void VersionUpdateWindow::CheckForUpdateSocket_SockConnected() {
  Get("InternetUpdateStatus").SetText("Comparing versions...");
}

void VersionUpdateWindow::CheckForUpdateSocket_PageReceived(const std::string& page) {
  CalcWindow& main = app_.windows.Instance<CalcWindow>(CalcWindow::kName);
  UpdateCheckPart* part = main.Part<UpdateCheckPart>();
  std::string local;
  std::string& buffer = part ? part->DataBuffer2 : local;
  buffer = page;
  Get("CheckForUpdateChasingArrows").SetVisible(false);
  const bool newer = IsNewVersion(buffer);
  AppContext& app = app_;
  CloseSheet();
  ShowUpdateSheet(app, newer ? VersionUpdateDownloadWindow::kName : VersionUpToDateWindow::kName);
}

void VersionUpdateWindow::CheckForUpdateSocket_TCPError() {
  AppContext& app = app_;
  CloseSheet();
  ShowNetworkError(app, "Could not connect to Brindley Software server.");
}

void VersionUpdateWindow::CloseSheet() {
  CloseWindowOf(*this, platform_);
}

VersionUpToDateWindow::VersionUpToDateWindow(Platform& platform)
    : Window(platform, kName, "Untitled") {
  AddControl(ControlDesign::At("Canvas2", ControlKind::Canvas, 20, 20, 48, 48));
  AddControl(ControlDesign::At("StaticText1", ControlKind::Label, 84, 20, 250, 36,
                               "Your copy of Tessarine is up to date."));
  AddControl(ControlDesign::At("ButtonClose", ControlKind::PushButton, 254, 78, 80, 20, "OK"))
      .events.Action = [this] { ButtonClose_Action(); };
  SetBounds(0, 0, 350, 111);
}

void VersionUpToDateWindow::ButtonClose_Action() {
  CloseWindowOf(*this, platform_);
}

VersionUpdateDownloadWindow::VersionUpdateDownloadWindow(Platform& platform)
    : Window(platform, kName, "Untitled") {
  AddControl(ControlDesign::At("Canvas2", ControlKind::Canvas, 20, 20, 48, 48));
  Control& message = AddControl(ControlDesign::At("VersionMessage", ControlKind::Label, 84, 16, 280,
                                                  20, "Version x.xx is now available!"));
  message.events.Open = [&message] {
    message.SetText("A new version of Tessarine is now available!");
  };
  AddControl(ControlDesign::At(
      "InstructionsMessage", ControlKind::Label, 84, 42, 280, 40,
      "Click the Download button to open the download page in your web browser."));
  AddControl(ControlDesign::At("ButtonCancel", ControlKind::PushButton, 183, 114, 80, 20, "Later"))
      .events.Action = [this] { ButtonCancel_Action(); };
  AddControl(
      ControlDesign::At("ButtonDownload", ControlKind::PushButton, 279, 114, 86, 20, "Download"))
      .events.Action = [this] { ButtonDownload_Action(); };
  SetBounds(0, 0, 379, 150);
}

void VersionUpdateDownloadWindow::ButtonDownload_Action() {
  platform_.desktop.ShowURL(DownloadPageURL(platform_));
  CloseWindowOf(*this, platform_);
}

void VersionUpdateDownloadWindow::ButtonCancel_Action() {
  CloseWindowOf(*this, platform_);
}

}  // namespace tessarine

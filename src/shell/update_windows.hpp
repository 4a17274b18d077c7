// The windows of the manual update check: the one that asks and fetches, the
// up-to-date box and the download offer, all shown as sheets of the main window.
#pragma once

#include <memory>

#include "http/basic_http.hpp"
#include "runtime/window.hpp"
#include "settings/app_context.hpp"

namespace tessarine {

// VersionUpdateWindow: asks before going online, then fetches the version page with
// a socket of its own, new with each opening.
class VersionUpdateWindow final : public Window {
 public:
  explicit VersionUpdateWindow(AppContext& app);
  static constexpr const char* kName = "VersionUpdateWindow";

  std::unique_ptr<BasicHTTP> CheckForUpdateSocket;

  void ButtonOK_Action();
  void ButtonCancel_Action();
  void CheckForUpdateSocket_SockConnected();
  void CheckForUpdateSocket_PageReceived(const std::string& page);
  void CheckForUpdateSocket_TCPError();

 private:
  void CloseSheet();
  AppContext& app_;
};

// VersionUpToDateWindow: says the running copy is the latest.
class VersionUpToDateWindow final : public Window {
 public:
  explicit VersionUpToDateWindow(Platform& platform);
  static constexpr const char* kName = "VersionUpToDateWindow";
  void ButtonClose_Action();
};

// VersionUpdateDownloadWindow: offers the download page of a newer version.
class VersionUpdateDownloadWindow final : public Window {
 public:
  explicit VersionUpdateDownloadWindow(Platform& platform);
  static constexpr const char* kName = "VersionUpdateDownloadWindow";
  void ButtonDownload_Action();
  void ButtonCancel_Action();
};

// Shows one of these windows within the main window, made anew if it is not open.
void ShowUpdateSheet(AppContext& app, const char* name);

}  // namespace tessarine

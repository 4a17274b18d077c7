#include "shell/update_check_part.hpp"

#include "conversion/proxy_settings.hpp"
#include "runtime/text.hpp"
#include "settings/preference_keys.hpp"
#include "shell/update_windows.hpp"
#include "shell/version_check.hpp"

namespace tessarine {

UpdateCheckPart::UpdateCheckPart(CalcWindow&, AppContext& app) : app_(app) {
  CheckForUpdateSocket = std::make_unique<BasicHTTP>(app.platform.sockets, app.platform.clock);
  CheckForUpdateSocket->PageReceived = [this](const std::string&, const std::string& page, bool) {
    CheckForUpdateSocket_PageReceived(page);
  };
  CheckForUpdateSocket->TCPError = [this](std::int32_t) { CheckForUpdateSocket_TCPError(); };
}

void UpdateCheckPart::Started(const std::string&) {
  if (!ReadPref(app_.prefs, prefs::CheckForUpdates)) return;
  ApplyProxySettings(app_.prefs, *CheckForUpdateSocket);
  CheckForUpdateSocket->Get(VersionPageURL(app_.platform));
}

void UpdateCheckPart::CheckForUpdateSocket_PageReceived(const std::string& page) {
  if (IsNewVersion(page)) ShowUpdateSheet(app_, VersionUpdateDownloadWindow::kName);
}

// The check at start-up fails without a word.
void UpdateCheckPart::CheckForUpdateSocket_TCPError() {
  CheckForUpdateSocket->Stop();
}

std::optional<FieldValue> UpdateCheckPart::FieldByName(std::string_view name) const {
  if (StrEq(name, "DataBuffer2")) return FieldValue{DataBuffer2};
  return std::nullopt;
}

}  // namespace tessarine

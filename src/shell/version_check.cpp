#include "shell/version_check.hpp"

#include "http/server_override.hpp"
#include "runtime/text.hpp"
#include "settings/deployment.hpp"

namespace tessarine {

bool IsNewVersion(std::string_view page) {
  return !StrEq(Mid(page, InStr(page, "Tsrn") + 5, 5), kRunningVersion);
}

namespace {
std::string MakerServerURL(const Platform& platform, const char* path) {
  return ApplyServerOverride("http://" + std::string(kMakerServer) + path,
                             platform.server_override);
}
}  // namespace

std::string VersionPageURL(const Platform& platform) {
  return MakerServerURL(platform, kVersionPagePath);
}

std::string DownloadPageURL(const Platform& platform) {
  return MakerServerURL(platform, kDownloadPagePath);
}

}  // namespace tessarine

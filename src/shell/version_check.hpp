// The version check's rule and addresses: the running version against the five
// characters after "Tsrn" and one more on the maker's version page.
#pragma once

#include <string>
#include <string_view>

#include "runtime/platform/platform.hpp"

namespace tessarine {

inline constexpr char kRunningVersion[] = "4.5.2";
inline constexpr char kVersionPagePath[] = "/tessarine/tsrn_version.html";
inline constexpr char kDownloadPagePath[] = "/download";

// True when the page names another version. There is no ordering: an older
// version or a page without the marker counts as new unless the five characters
// happen to match.
bool IsNewVersion(std::string_view page);

std::string VersionPageURL(const Platform& platform);
std::string DownloadPageURL(const Platform& platform);

}  // namespace tessarine

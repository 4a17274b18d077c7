// Where this build of the program finds its maker on the network: set by the
// build (see docs/deployment.md), the same for every user of one build.
#pragma once

#include <string_view>

namespace tessarine {

#ifndef TESSARINE_MAKER_HOST
#define TESSARINE_MAKER_HOST "tessarine.example.org"
#endif
#ifndef TESSARINE_MAKER_SERVER
#define TESSARINE_MAKER_SERVER "127.0.0.1:8642"
#endif

// The maker's host name, shown under the keypad and opened as the home page.
inline constexpr std::string_view kMakerHostName = TESSARINE_MAKER_HOST;

// Where the program fetches its rates and version pages and opens the download
// page: "host" or "host:port". Apart from the name shown, since a build from source
// serves them from a loopback port ("make serve") while the name stays readable.
inline constexpr std::string_view kMakerServer = TESSARINE_MAKER_SERVER;

}  // namespace tessarine

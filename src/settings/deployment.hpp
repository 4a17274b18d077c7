// Where this build of the program finds its maker on the network: set by the
// build (see docs/deployment.md), the same for every user of one build.
#pragma once

#include <string_view>

namespace tessarine {

#ifndef TESSARINE_MAKER_HOST
#define TESSARINE_MAKER_HOST "tessarine.example.org"
#endif

// The maker's host name, shown under the keypad and opened as the home page.
inline constexpr std::string_view kMakerHostName = TESSARINE_MAKER_HOST;

}  // namespace tessarine

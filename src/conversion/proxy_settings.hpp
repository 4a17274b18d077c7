// The proxy the user set in the preferences, handed to a client before a request.
#pragma once

#include "http/basic_http.hpp"
#include "settings/prefs_module.hpp"

namespace tessarine {

// With "UseProxyServer" on, sets the client's proxy from the four proxy keys (the
// port read with Val and cut to an integer); otherwise leaves the client as it is.
void ApplyProxySettings(PrefsModule& prefs, BasicHTTP& http);

}  // namespace tessarine

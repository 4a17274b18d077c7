#include "conversion/proxy_settings.hpp"

#include <cmath>
#include <limits>

#include "runtime/numbers.hpp"
#include "settings/preference_keys.hpp"

namespace tessarine {

namespace {

// Cut toward zero into the 32-bit range, as the runtime converts a number to an integer.
std::int32_t PortNumber(double value) {
  if (std::isnan(value)) return 0;
  const double cut = std::trunc(value);
  if (cut >= std::numeric_limits<std::int32_t>::max())
    return std::numeric_limits<std::int32_t>::max();
  if (cut <= std::numeric_limits<std::int32_t>::min())
    return std::numeric_limits<std::int32_t>::min();
  return static_cast<std::int32_t>(cut);
}

}  // namespace

void ApplyProxySettings(PrefsModule& prefs, BasicHTTP& http) {
  if (!ReadPref(prefs, prefs::UseProxyServer)) return;
  const std::string name = ReadPref(prefs, prefs::ProxyServerName);
  const std::int32_t port = PortNumber(Val(ReadPref(prefs, prefs::ProxyServerPort)));
  const std::string user = ReadPref(prefs, prefs::ProxyServerUser);
  const std::string password = ReadPref(prefs, prefs::ProxyServerPassword);
  http.SetProxy(name, port, user, password);
}

}  // namespace tessarine

#include "shell/donation_links.hpp"

#include "http/http_encoders.hpp"

// Set by the build (docs/deployment.md).
#ifndef TESSARINE_DONATION_HOST
#define TESSARINE_DONATION_HOST "donate.example.org"
#endif
#ifndef TESSARINE_DONATION_ACCOUNT
#define TESSARINE_DONATION_ACCOUNT "author@tessarine.example.org"
#endif
#ifndef TESSARINE_DONATION_BUTTON
#define TESSARINE_DONATION_BUTTON "TESSARINE-DONATE"
#endif

namespace tessarine {

std::string DonateMenuAddress() {
  return "https://" TESSARINE_DONATION_HOST "/xclick/business=" +
         URLEncodeBytes(TESSARINE_DONATION_ACCOUNT, false, false) +
         "&item_name=Donation+from+grateful+Tessarine+user&no_shipping=1&no_note=1"
         "&cn=Special+Instructions+%28optional&tax=0&currency_code=USD";
}

std::string HostedButtonAddress() {
  return "https://" TESSARINE_DONATION_HOST
         "/cgi-bin/webscr?cmd=_s-xclick&hosted_button_id=" TESSARINE_DONATION_BUTTON;
}

}  // namespace tessarine

// The two donation addresses of the maker's account at the donation service.
#pragma once

#include <string>

namespace tessarine {

// The Donate menu item's page, with the account address in the query.
std::string DonateMenuAddress();
// The maker's hosted button: the reminder's and the About box's links.
std::string HostedButtonAddress();

}  // namespace tessarine

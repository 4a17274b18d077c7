// The age of the rates. The stored date is compared as text with the user's short
// date form, so "NEVER" or a date written under another locale shows as stale.
#include "conversion/rates_age.hpp"

#include "runtime/text.hpp"

namespace tessarine {

std::string LastUpdatedText(std::string_view time_and_date) {
  return "Last updated: " + std::string(time_and_date);
}

bool RatesAreStale(std::string_view update_date, const Date& today) {
  return !StrEq(update_date, today.ShortDate());
}

RatesAgeLine RatesAgeAtOpen(std::string_view time_and_date, std::string_view update_date,
                            const Date& today) {
  return {LastUpdatedText(time_and_date), RatesAreStale(update_date, today)};
}

}  // namespace tessarine

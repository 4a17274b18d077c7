#include "settings/global_stuff.hpp"

#include <algorithm>

namespace tessarine {

void GlobalStuff::RebuildFormats(int decimals) {
  decimals = std::clamp(decimals, 0, 10);
  NumberOfDecimals = decimals;
  const std::string places(static_cast<std::size_t>(decimals), '#');
  NoExponentFormat = "-#." + places;
  ExponentFormat = "-#." + places + "e+";
  // N - 1 zeros then a 1, so that N = 0 and N = 1 both give 0.1.
  const std::string zeros(static_cast<std::size_t>(std::max(decimals - 1, 0)), '0');
  SmallPositiveNumber = "0." + zeros + "1";
  SmallNegativeNumber = "-0." + zeros + "1";
}

const char* ChooseSoundFromNumber(int number) {
  static constexpr const char* kSounds[] = {"Basso",   "Boop",   "Click",  "Clickclack",
                                            "Kachick", "Keybrd", "Pop",    "Thump",
                                            "Tick",    "Type",   "Typetty"};
  return number >= 0 && number <= 10 ? kSounds[number] : nullptr;
}

}  // namespace tessarine

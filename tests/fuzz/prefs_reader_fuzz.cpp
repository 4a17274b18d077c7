// Fuzz target of the preferences reader: any bytes at all parse without crash,
// hang or unbounded allocation, and what was parsed writes out and reads back to
// the same keys, texts and flags.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "settings/prefs_records.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const tessarine::PrefsData parsed = tessarine::ParsePrefsFile(bytes, ".");
  const tessarine::PrefsData again =
      tessarine::ParsePrefsFile(tessarine::SerializePrefsFile(parsed, "."), ".");
  if (again.booleans.size() != parsed.booleans.size() ||
      again.strings.size() != parsed.strings.size() ||
      again.colors.size() != parsed.colors.size() ||
      again.numbers.size() != parsed.numbers.size())
    std::abort();
  for (std::size_t i = 0; i < parsed.booleans.size(); ++i)
    if (again.booleans[i].key != parsed.booleans[i].key ||
        again.booleans[i].value != parsed.booleans[i].value ||
        again.booleans[i].scrambled != parsed.booleans[i].scrambled)
      std::abort();
  for (std::size_t i = 0; i < parsed.strings.size(); ++i)
    if (again.strings[i].value != parsed.strings[i].value) std::abort();
  return 0;
}

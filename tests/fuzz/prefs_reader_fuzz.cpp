// Fuzz target of the preferences reader: any bytes at all parse without crash,
// hang or unbounded allocation, and what was parsed writes out and reads back with
// every entry equal: key, value and scrambled flag. Numbers are stored in a lossy
// form, so theirs must be stable from the second round trip on.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <vector>

#include "settings/prefs_records.hpp"

namespace {

bool Same(double a, double b) {
  return std::memcmp(&a, &b, sizeof a) == 0;
}
template <class T>
bool Same(const T& a, const T& b) {
  return a == b;
}

template <class T>
void ExpectEqual(const std::vector<tessarine::PrefsEntry<T>>& a,
                 const std::vector<tessarine::PrefsEntry<T>>& b) {
  if (a.size() != b.size()) std::abort();
  for (std::size_t i = 0; i < a.size(); ++i)
    if (a[i].key != b[i].key || !Same(a[i].value, b[i].value) || a[i].scrambled != b[i].scrambled)
      std::abort();
}

tessarine::PrefsData RoundTrip(const tessarine::PrefsData& data) {
  return tessarine::ParsePrefsFile(tessarine::SerializePrefsFile(data, "."), ".");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const tessarine::PrefsData parsed = tessarine::ParsePrefsFile(bytes, ".");
  const tessarine::PrefsData again = RoundTrip(parsed);
  ExpectEqual(parsed.booleans, again.booleans);
  ExpectEqual(parsed.strings, again.strings);
  ExpectEqual(parsed.colors, again.colors);
  const tessarine::PrefsData third = RoundTrip(again);
  if (parsed.numbers.size() != again.numbers.size()) std::abort();
  ExpectEqual(again.numbers, third.numbers);
  return 0;
}

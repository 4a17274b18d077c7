// The table of preference keys: each key once. The defaults, the first read that
// keeps its default, and the indexed keys' names are the scripts' (the store's
// listings of session_restart, tape and the constants scripts).
#include "settings/preference_keys.hpp"

#include <gtest/gtest.h>

#include <set>

#include "runtime/text.hpp"

namespace tessarine {
namespace {

TEST(PreferenceKeys, EachKeyIsDeclaredOnce) {
  std::set<std::string> seen;
  for (const PrefKeyInfo& key : AllPreferenceKeys()) {
    std::string folded;
    for (char c : key.name)
      folded += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    EXPECT_TRUE(seen.insert(folded).second) << key.name << " is declared twice";
  }
  // No plain key may be read as an indexed one's member ("SavedStorageValue1").
  for (const PrefKeyInfo& indexed : AllPreferenceKeys()) {
    if (!indexed.indexed) continue;
    for (const PrefKeyInfo& key : AllPreferenceKeys()) {
      EXPECT_FALSE(!key.indexed && StrEq(Left(key.name, Len(indexed.name)), indexed.name))
          << key.name << " clashes with " << indexed.name;
    }
  }
}

}  // namespace
}  // namespace tessarine

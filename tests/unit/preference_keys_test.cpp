// The table of preference keys: each key once, and the accessors reading and
// writing the entries the session reads, with their defaults.
#include "settings/preference_keys.hpp"

#include <gtest/gtest.h>

#include <set>

#include "runtime/headless/memory_file_system.hpp"
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

TEST(PreferenceKeys, AFirstReadGivesTheDefaultAndKeepsIt) {
  MemoryFileSystem files;
  PrefsModule store(files, ".");
  store.SetName("Tessarine4 Preferences", "PREF");
  EXPECT_EQ(ReadPref(store, prefs::StartWithTab), "Tab1");
  EXPECT_EQ(ReadPref(store, prefs::LeftPosition), 220);
  EXPECT_TRUE(ReadPref(store, prefs::SpeakButton));
  EXPECT_FALSE(ReadPref(store, prefs::MemoryBankVisible, 3));
  WritePref(store, prefs::StartWithTab, "Tab4");
  WritePref(store, prefs::SavedStorageValue, 10, 2.5);
  EXPECT_EQ(ReadPref(store, prefs::StartWithTab), "Tab4");
  EXPECT_EQ(ReadPref(store, prefs::SavedStorageValue, 10), 2.5);
  EXPECT_EQ(store.GetNumberValue("SavedStorageValue10", 0, true), 2.5);
}

}  // namespace
}  // namespace tessarine

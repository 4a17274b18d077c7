// The keys of the preferences file: every key, its type and its default, in one
// table. The session, the tape and the preferences window read and write through
// the typed accessors below, so a key's spelling, type and default stand in one
// place. Every entry is written scrambled.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "settings/prefs_module.hpp"

namespace tessarine {

// X(type, key, default): one row a key, in the order a first start writes them.
// Keys with a number after them ("SavedStorageValue3") are INDEXED rows.
#define TESSARINE_PREFERENCE_KEYS(X)              \
  X(Boolean, ShowToolTipHelpTags, true)           \
  X(Boolean, ShowMemoryButtonsSetting, false)     \
  X(Boolean, StartupWithAdvancedFeatures, false)  \
  X(String, StartWithTab, "Tab1")                 \
  X(Boolean, TapeOn, false)                       \
  X(Boolean, TapeVisible, false)                  \
  X(Number, LeftPosition, 220)                    \
  X(Number, TopPosition, 100)                     \
  X(String, NoExpFormat, "-#.########")           \
  X(String, ExpFormat, "-#.########e+")           \
  X(String, SmallPosNumber, "0.0000001")          \
  X(String, SmallNegNumber, "-0.0000001")         \
  X(Number, NumOfDec, 6)                          \
  X(Boolean, UseNumberSnd, true)                  \
  X(Boolean, UseCalculationSnd, true)             \
  X(Boolean, UseErrorSnd, true)                   \
  X(Boolean, UseClearSnd, true)                   \
  X(Boolean, UseResultSnd, true)                  \
  X(Number, NumberSndNumber, 6)                   \
  X(Number, CalculationSndNumber, 2)              \
  X(Number, ErrorSndNumber, 1)                    \
  X(Number, ClearSndNumber, 5)                    \
  X(Number, ResultSndNumber, 10)                  \
  X(Boolean, SaveDisplaySetting, false)           \
  X(Boolean, SaveMemoryBanksSetting, false)       \
  X(Boolean, SpeakButton, true)                   \
  X(Boolean, SpeakTotal, true)                    \
  X(Number, TapeLeftPosition, 10)                 \
  X(Number, TapeTopPosition, 100)                 \
  X(Number, TapeHeight, 250)                      \
  X(String, SavedDisplayValue, "0")               \
  X(String, SavedExpValue, "")                    \
  X(Number, NumberOfLaunchesVal, 1)               \
  X(Boolean, ShowDonationReminder, true)          \
  X(Number, NumberOfConstants, -1)                \
  X(Boolean, UpdateExchangeRates, true)           \
  X(Boolean, CheckForUpdates, false)              \
  X(Boolean, UseProxyServer, false)               \
  X(String, ProxyServerName, "proxy.example.com") \
  X(String, ProxyServerPort, "8080")              \
  X(String, ProxyServerUser, "username")          \
  X(String, ProxyServerPassword, "")

#define TESSARINE_INDEXED_PREFERENCE_KEYS(X) \
  X(Number, SavedStorageValue, 0)            \
  X(Boolean, MemoryBankVisible, false)       \
  X(String, ConstantName, "Error!")          \
  X(String, ConstantValue, "Error!")

enum class PrefType { Boolean, Number, String };

template <PrefType T>
struct PrefValueOf;
template <>
struct PrefValueOf<PrefType::Boolean> {
  using type = bool;
};
template <>
struct PrefValueOf<PrefType::Number> {
  using type = double;
};
template <>
struct PrefValueOf<PrefType::String> {
  using type = std::string_view;
};

// A key of the file, with its type and default.
template <PrefType T>
struct PrefKey {
  std::string_view name;
  typename PrefValueOf<T>::type fallback;
};

// A family of keys told apart by a number after the name ("SavedStorageValue" 1 to 10).
template <PrefType T>
struct IndexedPrefKey {
  std::string_view prefix;
  typename PrefValueOf<T>::type fallback;
};

namespace prefs {
#define TESSARINE_DECLARE_KEY(type, key, fallback) \
  inline constexpr PrefKey<PrefType::type> key{#key, fallback};
TESSARINE_PREFERENCE_KEYS(TESSARINE_DECLARE_KEY)
#undef TESSARINE_DECLARE_KEY
#define TESSARINE_DECLARE_INDEXED_KEY(type, key, fallback) \
  inline constexpr IndexedPrefKey<PrefType::type> key{#key, fallback};
TESSARINE_INDEXED_PREFERENCE_KEYS(TESSARINE_DECLARE_INDEXED_KEY)
#undef TESSARINE_DECLARE_INDEXED_KEY
}  // namespace prefs

// One row of the table, for those that walk it (the tests, the preferences window).
struct PrefKeyInfo {
  std::string_view name;
  PrefType type;
  bool indexed;
};
std::span<const PrefKeyInfo> AllPreferenceKeys();

// Reading a key that is not in the file yet creates it with its default.
bool ReadPref(PrefsModule& store, const PrefKey<PrefType::Boolean>& key);
double ReadPref(PrefsModule& store, const PrefKey<PrefType::Number>& key);
std::string ReadPref(PrefsModule& store, const PrefKey<PrefType::String>& key);
void WritePref(PrefsModule& store, const PrefKey<PrefType::Boolean>& key, bool value);
void WritePref(PrefsModule& store, const PrefKey<PrefType::Number>& key, double value);
void WritePref(PrefsModule& store, const PrefKey<PrefType::String>& key, const std::string& value);
double ReadPref(PrefsModule& store, const IndexedPrefKey<PrefType::Number>& key, int index);
bool ReadPref(PrefsModule& store, const IndexedPrefKey<PrefType::Boolean>& key, int index);
void WritePref(PrefsModule& store, const IndexedPrefKey<PrefType::Number>& key, int index,
               double value);
void WritePref(PrefsModule& store, const IndexedPrefKey<PrefType::Boolean>& key, int index,
               bool value);
std::string ReadPref(PrefsModule& store, const IndexedPrefKey<PrefType::String>& key, int index);
// With another default than the table's (the first start's constants).
std::string ReadPref(PrefsModule& store, const IndexedPrefKey<PrefType::String>& key, int index,
                     const std::string& fallback);
void WritePref(PrefsModule& store, const IndexedPrefKey<PrefType::String>& key, int index,
               const std::string& value);

}  // namespace tessarine

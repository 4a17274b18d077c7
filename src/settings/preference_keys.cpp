#include "settings/preference_keys.hpp"

namespace tessarine {

namespace {

template <PrefType T>
std::string NameOf(const IndexedPrefKey<T>& key, int index) {
  return std::string(key.prefix) + std::to_string(index);
}

}  // namespace

std::span<const PrefKeyInfo> AllPreferenceKeys() {
  static constexpr PrefKeyInfo kAll[] = {
#define TESSARINE_KEY_ROW(type, key, fallback) {#key, PrefType::type, false},
      TESSARINE_PREFERENCE_KEYS(TESSARINE_KEY_ROW)
#undef TESSARINE_KEY_ROW
#define TESSARINE_INDEXED_KEY_ROW(type, key, fallback) {#key, PrefType::type, true},
          TESSARINE_INDEXED_PREFERENCE_KEYS(TESSARINE_INDEXED_KEY_ROW)
#undef TESSARINE_INDEXED_KEY_ROW
  };
  return kAll;
}

bool ReadPref(PrefsModule& store, const PrefKey<PrefType::Boolean>& key) {
  return store.GetBooleanValue(std::string(key.name), key.fallback, true);
}
double ReadPref(PrefsModule& store, const PrefKey<PrefType::Number>& key) {
  return store.GetNumberValue(std::string(key.name), key.fallback, true);
}
std::string ReadPref(PrefsModule& store, const PrefKey<PrefType::String>& key) {
  return store.GetStringValue(std::string(key.name), std::string(key.fallback), true);
}
void WritePref(PrefsModule& store, const PrefKey<PrefType::Boolean>& key, bool value) {
  store.SetBooleanValue(std::string(key.name), value, true);
}
void WritePref(PrefsModule& store, const PrefKey<PrefType::Number>& key, double value) {
  store.SetNumberValue(std::string(key.name), value, true);
}
void WritePref(PrefsModule& store, const PrefKey<PrefType::String>& key, const std::string& value) {
  store.SetStringValue(std::string(key.name), value, true);
}

double ReadPref(PrefsModule& store, const IndexedPrefKey<PrefType::Number>& key, int index) {
  return store.GetNumberValue(NameOf(key, index), key.fallback, true);
}
bool ReadPref(PrefsModule& store, const IndexedPrefKey<PrefType::Boolean>& key, int index) {
  return store.GetBooleanValue(NameOf(key, index), key.fallback, true);
}
void WritePref(PrefsModule& store, const IndexedPrefKey<PrefType::Number>& key, int index,
               double value) {
  store.SetNumberValue(NameOf(key, index), value, true);
}
void WritePref(PrefsModule& store, const IndexedPrefKey<PrefType::Boolean>& key, int index,
               bool value) {
  store.SetBooleanValue(NameOf(key, index), value, true);
}

std::string ReadPref(PrefsModule& store, const IndexedPrefKey<PrefType::String>& key, int index) {
  return ReadPref(store, key, index, std::string(key.fallback));
}
std::string ReadPref(PrefsModule& store, const IndexedPrefKey<PrefType::String>& key, int index,
                     const std::string& fallback) {
  return store.GetStringValue(NameOf(key, index), fallback, true);
}
void WritePref(PrefsModule& store, const IndexedPrefKey<PrefType::String>& key, int index,
               const std::string& value) {
  store.SetStringValue(NameOf(key, index), value, true);
}

}  // namespace tessarine

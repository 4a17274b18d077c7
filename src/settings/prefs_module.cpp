#include "settings/prefs_module.hpp"

namespace tessarine {

PrefsModule::PrefsModule(FileSystem& files, std::string decimal_separator)
    : files_(files), separator_(std::move(decimal_separator)) {}

std::string PrefsModule::FilePath() const {
  return files_.PreferencesFolder() + "/" + name_;
}

void PrefsModule::SetName(const std::string& file_name, const std::string& creator) {
  if (!set_) {
    name_ = file_name;
    creator_ = creator;
    set_ = true;
    data_ = PrefsData{};
  }
  ReadIn();  // a later call's names are ignored: it rereads the first file
}

void PrefsModule::ReadIn() {
  if (!set_) return;
  data_ = PrefsData{};
  if (const auto bytes = files_.ReadFile(FilePath())) data_ = ParsePrefsFile(*bytes, separator_);
}

void PrefsModule::WriteOut() {
  if (name_.empty()) return;  // no file named yet: nowhere to write
  files_.WriteFileAtomically(FilePath(), SerializePrefsFile(data_, separator_));
}

template <typename T>
void PrefsModule::Set(std::vector<PrefsEntry<T>>& family, const std::string& key, const T& value,
                      bool encrypted) {
  if (!set_) return;
  // Keys are compared with case significant; with duplicates, the first counts.
  for (auto& entry : family) {
    if (entry.key == key) {
      entry.value = value;
      entry.scrambled = encrypted;
      return;
    }
  }
  family.push_back({key, value, encrypted});
}

template <typename T>
T PrefsModule::Get(std::vector<PrefsEntry<T>>& family, const std::string& key, const T& fallback,
                   bool encrypted) {
  if (set_)
    for (const auto& entry : family)
      if (entry.key == key) return entry.value;
  Set(family, key, fallback, encrypted);  // a missing key is created with its default
  return fallback;
}

std::string PrefsModule::GetStringValue(const std::string& key, const std::string& fallback,
                                        bool encrypted) {
  return Get(data_.strings, key, fallback, encrypted);
}
double PrefsModule::GetNumberValue(const std::string& key, double fallback, bool encrypted) {
  return Get(data_.numbers, key, fallback, encrypted);
}
bool PrefsModule::GetBooleanValue(const std::string& key, bool fallback, bool encrypted) {
  return Get(data_.booleans, key, fallback, encrypted);
}
void PrefsModule::SetStringValue(const std::string& key, const std::string& value, bool encrypted) {
  Set(data_.strings, key, value, encrypted);
}
void PrefsModule::SetNumberValue(const std::string& key, double value, bool encrypted) {
  Set(data_.numbers, key, value, encrypted);
}
void PrefsModule::SetBooleanValue(const std::string& key, bool value, bool encrypted) {
  Set(data_.booleans, key, value, encrypted);
}

}  // namespace tessarine

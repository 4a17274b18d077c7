// PrefsModule: the program's one persistent store. Typed lists of key and value,
// kept in memory and rewritten whole to one binary file. Reading a missing key
// creates it with its default, so every default reaches the file at the next
// WriteOut. The store reports nothing: a missing or damaged file is an empty or
// partial store, never an error.
#pragma once

#include <string>

#include "runtime/platform/file_system.hpp"
#include "settings/prefs_records.hpp"

namespace tessarine {

class PrefsModule {
 public:
  PrefsModule(FileSystem& files, std::string decimal_separator);

  // Opens the store: names the file on the first call only, then (every call)
  // reads it in, dropping changes not yet written.
  void SetName(const std::string& file_name, const std::string& creator);
  void ReadIn();
  // Writes the whole store: the old file or the new one, never less.
  void WriteOut();

  std::string GetStringValue(const std::string& key, const std::string& fallback, bool encrypted);
  double GetNumberValue(const std::string& key, double fallback, bool encrypted);
  bool GetBooleanValue(const std::string& key, bool fallback, bool encrypted);
  void SetStringValue(const std::string& key, const std::string& value, bool encrypted);
  void SetNumberValue(const std::string& key, double value, bool encrypted);
  void SetBooleanValue(const std::string& key, bool value, bool encrypted);

  bool IsSet() const { return set_; }
  const PrefsData& Data() const { return data_; }
  std::string FilePath() const;

 private:
  template <typename T>
  T Get(std::vector<PrefsEntry<T>>& family, const std::string& key, const T& fallback,
        bool encrypted);
  template <typename T>
  void Set(std::vector<PrefsEntry<T>>& family, const std::string& key, const T& value,
           bool encrypted);

  FileSystem& files_;
  std::string separator_;
  bool set_ = false;
  std::string name_;
  std::string creator_;  // kept as given; a Linux file has no creator code
  PrefsData data_;
};

}  // namespace tessarine

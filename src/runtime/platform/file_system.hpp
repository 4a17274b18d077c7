// Files, as the program needs them: whole files read and written at once. A write
// replaces the file atomically, so that an interrupted write leaves the old file
// or the new one, never a truncated or empty one.
#pragma once

#include <optional>
#include <string>

namespace tessarine {

class FileSystem {
 public:
  virtual ~FileSystem() = default;
  // The per-user folder of the program's preferences.
  virtual std::string PreferencesFolder() const = 0;
  // The file's bytes, or nothing when it does not exist or cannot be read.
  virtual std::optional<std::string> ReadFile(const std::string& path) const = 0;
  // Replaces the file's content, making its folder if need be. False on failure,
  // in which case the old file is untouched.
  virtual bool WriteFileAtomically(const std::string& path, const std::string& bytes) = 0;
};

}  // namespace tessarine

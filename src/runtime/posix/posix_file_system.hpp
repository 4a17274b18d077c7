// FileSystem on a POSIX system: the preferences folder under $XDG_CONFIG_HOME (by
// default ~/.config), and writes that go to a temporary file in the same folder,
// flushed to disk and renamed over the old one.
#pragma once

#include <string>

#include "runtime/platform/file_system.hpp"

namespace tessarine {

class PosixFileSystem final : public FileSystem {
 public:
  // An empty folder means the user's default: $XDG_CONFIG_HOME/Tessarine.
  explicit PosixFileSystem(std::string preferences_folder = "");

  std::string PreferencesFolder() const override { return folder_; }
  std::optional<std::string> ReadFile(const std::string& path) const override;
  bool WriteFileAtomically(const std::string& path, const std::string& bytes) override;

 private:
  std::string folder_;
};

}  // namespace tessarine

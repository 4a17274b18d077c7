// Files kept in memory, for the headless driver and the tests.
#pragma once

#include <map>
#include <string>

#include "runtime/platform/file_system.hpp"

namespace tessarine {

class MemoryFileSystem final : public FileSystem {
 public:
  std::string PreferencesFolder() const override { return "/memory/Tessarine"; }
  std::optional<std::string> ReadFile(const std::string& path) const override {
    auto it = files_.find(path);
    if (it == files_.end()) return std::nullopt;
    return it->second;
  }
  bool WriteFileAtomically(const std::string& path, const std::string& bytes) override {
    files_[path] = bytes;
    return true;
  }

 private:
  std::map<std::string, std::string> files_;
};

}  // namespace tessarine

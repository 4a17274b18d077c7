// Files kept in memory, for the headless driver and the tests: what the program
// writes stays in memory, so no test touches the user's settings. A file never
// written here is read from the disk, as a file a user drops on the program.
#pragma once

#include <fstream>
#include <iterator>
#include <map>
#include <string>

#include "runtime/platform/file_system.hpp"

namespace tessarine {

class MemoryFileSystem final : public FileSystem {
 public:
  std::string PreferencesFolder() const override { return "/memory/Tessarine"; }
  std::optional<std::string> ReadFile(const std::string& path) const override {
    auto it = files_.find(path);
    if (it != files_.end()) return it->second;
    if (path.rfind(PreferencesFolder(), 0) == 0) return std::nullopt;
    std::ifstream in(path, std::ios::binary);
    if (!in) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  }
  bool WriteFileAtomically(const std::string& path, const std::string& bytes) override {
    files_[path] = bytes;
    return true;
  }

 private:
  std::map<std::string, std::string> files_;
};

}  // namespace tessarine

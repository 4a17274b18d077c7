#include "runtime/posix/posix_file_system.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace tessarine {

namespace {

std::string DefaultFolder() {
  if (const char* config = std::getenv("XDG_CONFIG_HOME"); config && *config == '/')
    return std::string(config) + "/Tessarine";
  if (const char* home = std::getenv("HOME"); home && *home)
    return std::string(home) + "/.config/Tessarine";
  return ".";
}

bool WriteAll(int fd, const std::string& bytes) {
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t n = ::write(fd, bytes.data() + done, bytes.size() - done);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    done += static_cast<std::size_t>(n);
  }
  return true;
}

}  // namespace

PosixFileSystem::PosixFileSystem(std::string preferences_folder)
    : folder_(preferences_folder.empty() ? DefaultFolder() : std::move(preferences_folder)) {}

std::optional<std::string> PosixFileSystem::ReadFile(const std::string& path) const {
  std::ifstream in(path, std::ios::binary);
  if (!in) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

bool PosixFileSystem::WriteFileAtomically(const std::string& path, const std::string& bytes) {
  const std::filesystem::path target(path);
  std::error_code error;
  if (target.has_parent_path()) std::filesystem::create_directories(target.parent_path(), error);

  // A temporary file beside the target, so that the rename stays on one file system.
  std::string temporary = path + ".XXXXXX";
  const int fd = ::mkstemp(temporary.data());
  if (fd < 0) return false;
  ::fchmod(fd, 0600);
  const bool written = WriteAll(fd, bytes) && ::fsync(fd) == 0;
  if (::close(fd) != 0 || !written || ::rename(temporary.c_str(), path.c_str()) != 0) {
    ::unlink(temporary.c_str());
    return false;
  }
  // Make the rename itself durable.
  const std::string folder = target.has_parent_path() ? target.parent_path().string() : ".";
  if (const int dir = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY); dir >= 0) {
    ::fsync(dir);
    ::close(dir);
  }
  return true;
}

}  // namespace tessarine

// A write of the preferences file killed at any moment leaves the old file or the
// new one, whole: never a truncated or empty file.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>

#include "runtime/posix/posix_file_system.hpp"

namespace tessarine {
namespace {

TEST(PrefsCrashSafety, AKilledWriteLeavesTheOldFileOrTheNewOne) {
  char folder_template[] = "/tmp/tessarine-crash-XXXXXX";
  ASSERT_NE(::mkdtemp(folder_template), nullptr);
  const std::string folder = folder_template;
  const std::string path = folder + "/Tessarine4 Preferences";
  // Large enough that a write takes a while, so the kills land inside it.
  const std::string old_bytes(4 << 20, 'A');
  const std::string new_bytes(3 << 20, 'B');
  PosixFileSystem files(folder);

  std::mt19937 random(7);
  int saw_old = 0, saw_new = 0;
  for (int trial = 0; trial < 40; ++trial) {
    ASSERT_TRUE(files.WriteFileAtomically(path, old_bytes));
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      PosixFileSystem child_files(folder);
      child_files.WriteFileAtomically(path, new_bytes);
      ::_exit(0);
    }
    ::usleep(std::uniform_int_distribution<unsigned>(0, 20000)(random));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    const auto now = files.ReadFile(path);
    ASSERT_TRUE(now.has_value());
    ASSERT_TRUE(*now == old_bytes || *now == new_bytes)
        << "trial " << trial << ": " << now->size() << " bytes";
    (*now == old_bytes ? saw_old : saw_new)++;
  }
  std::filesystem::remove_all(folder);
  RecordProperty("old", saw_old);
  RecordProperty("new", saw_new);
}

}  // namespace
}  // namespace tessarine

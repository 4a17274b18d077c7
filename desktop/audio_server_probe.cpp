#include "audio_server_probe.hpp"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>

namespace tessarine::desktop {

bool SoundServerReachable() {
  bool unknown = false;
  const auto paths =
      SoundServerSockets(std::getenv("PULSE_SERVER"), std::getenv("XDG_RUNTIME_DIR"), unknown);
  if (unknown) return true;
  for (const std::string& path : paths) {
    sockaddr_un address{};
    if (path.size() >= sizeof address.sun_path) continue;
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd < 0) continue;
    const bool there = connect(fd, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    close(fd);
    if (there) return true;
  }
  return false;
}

}  // namespace tessarine::desktop

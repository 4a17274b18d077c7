// Whether the sound server can be reached now, asked without the audio library: the
// library looks for the server once, at its first use, and never again after a
// failure, so the program waits to touch it until a server is there. Only local
// servers (a socket path) can be told absent; any other address counts as there.
#pragma once

#include <sstream>
#include <string>
#include <vector>

namespace tessarine::desktop {

// The socket paths to try for a PULSE_SERVER value and a runtime folder; `unknown`
// is set when an address is not a local socket, or none is known.
inline std::vector<std::string> SoundServerSockets(const char* pulse_server,
                                                   const char* runtime_dir, bool& unknown) {
  unknown = false;
  std::vector<std::string> paths;
  if (pulse_server && *pulse_server) {
    std::istringstream list(pulse_server);
    for (std::string address; list >> address;) {
      if (address.front() == '{') address.erase(0, address.find('}') + 1);  // {machine id}
      if (address.rfind("unix:", 0) == 0) address.erase(0, 5);
      if (address.empty() || address.front() != '/')
        unknown = true;  // a network address
      else
        paths.push_back(address);
    }
    return paths;
  }
  if (!runtime_dir || !*runtime_dir) {
    unknown = true;  // the library may still find one through the display
    return paths;
  }
  paths.push_back(std::string(runtime_dir) + "/pulse/native");
  paths.push_back("/run/pulse/native");  // a server of the whole system
  return paths;
}

bool SoundServerReachable();

}  // namespace tessarine::desktop

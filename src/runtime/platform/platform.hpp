// Everything the program's logic asks of the machine it runs on, in one bundle
// handed down from main. The Qt front end and the headless driver each provide a
// full set; the logic never knows which.
#pragma once

#include <string>

#include "runtime/platform/clipboard.hpp"
#include "runtime/platform/clock.hpp"
#include "runtime/platform/desktop.hpp"
#include "runtime/platform/feedback.hpp"
#include "runtime/platform/file_system.hpp"
#include "runtime/platform/keyboard_state.hpp"
#include "runtime/platform/socket.hpp"
#include "runtime/platform/timer_host.hpp"

namespace tessarine {

struct Platform {
  Clock& clock;
  KeyboardState& keyboard;
  TimerHost& timers;
  Clipboard& clipboard;
  Feedback& feedback;
  Desktop& desktop;
  FileSystem& files;
  SocketFactory& sockets;
  // The user's decimal separator, read once from the system at start.
  std::string decimal_separator = ".";
  // "host:port" that takes the place of the maker's server in every request the
  // program makes (ApplyServerOverride in http/); empty: the maker's own.
  std::string server_override = {};
};

}  // namespace tessarine

// tessarine-drive: runs the calculator headless from a script of user actions and
// prints what the user would see. See docs/driver.md for the protocol.
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <iostream>
#include <string>

#include "driver.hpp"

namespace {

int Usage() {
  std::cerr << "usage: tessarine-drive [--prefs-dir DIR] [--decimal-separator C] [--screen WxH] "
               "[--server HOST:PORT] [SCRIPT]\n";
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  tessarine::drive::DriverOptions options;
  std::string script_path;
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    if ((arg == "--prefs-dir" || arg == "--decimal-separator") && i + 1 < argc) {
      (arg == "--prefs-dir" ? options.prefs_dir : options.decimal_separator) = argv[++i];
    } else if (arg == "--screen" && i + 1 < argc) {
      if (std::sscanf(argv[++i], "%dx%d", &options.screen_width, &options.screen_height) != 2)
        return Usage();
    } else if (arg == "--server" && i + 1 < argc) {
      options.server = argv[++i];
      const auto colon = options.server.rfind(':');
      int port = 0;
      if (colon == 0 || colon == std::string::npos ||
          std::sscanf(options.server.c_str() + colon + 1, "%d", &port) != 1 || port < 1 ||
          port > 65535 ||
          options.server.find_first_not_of("0123456789", colon + 1) != std::string::npos)
        return Usage();
    } else if (!arg.empty() && arg[0] == '-' && arg != "-") {
      return Usage();
    } else if (script_path.empty()) {
      script_path = arg;
    } else {
      return Usage();
    }
  }
  if (options.decimal_separator.empty()) return Usage();

  std::ifstream file;
  if (!script_path.empty() && script_path != "-") {
    file.open(script_path);
    if (!file) {
      std::cerr << "tessarine-drive: cannot read " << script_path << '\n';
      return 2;
    }
  }
  std::istream& in = file.is_open() ? file : std::cin;
  // Typed at a terminal, a bad line is reported and the session goes on.
  const bool interactive = !file.is_open() && isatty(STDIN_FILENO);

  tessarine::drive::Driver driver(options);
  std::string line;
  int number = 0;
  while (std::getline(in, line)) {
    ++number;
    try {
      driver.RunLine(line, std::cout);
    } catch (const tessarine::drive::ScriptError& error) {
      std::cout.flush();
      std::cerr << "line " << number << ": " << error.what() << '\n';
      if (!interactive) return 2;
    }
    if (interactive) std::cout.flush();
  }
  return 0;
}

// A headless program whose sockets are real and whose maker's server is a scripted
// one on loopback, started up to the moment the start-up timer is due.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "calculator/calc_window.hpp"
#include "runtime/headless/headless_platform.hpp"
#include "runtime/headless/memory_file_system.hpp"
#include "runtime/posix/posix_socket.hpp"
#include "scripted_server.hpp"
#include "shell/program.hpp"

namespace tessarine::testing {

class NetFixture : public ::testing::Test {
 protected:
  // Opens the program against `server_port`, with the two start-up settings set;
  // the start-up timer has not fired yet.
  void Open(int server_port, bool update_rates, bool check_updates);
  // Lets the start-up timer fire.
  void Started() { platform_->Wait(150); }
  // Delivers socket events for up to `ms` of real time.
  void Net(int ms) { platform_->Net(ms); }
  CalcWindow& Calc() { return program_->GetCalcWindow(); }
  std::string Text(const char* control) { return Calc().Get(control).Text(); }
  std::string Caption(const char* control) { return Calc().Get(control).Caption(); }
  bool IsOpen(const char* window) { return program_->FindOpenWindow(window) != nullptr; }
  // The kinds of the platform's events since the last call, sockets left out.
  std::vector<std::string> Events();

  MemoryFileSystem files_;
  PosixSocketFactory sockets_;
  std::unique_ptr<HeadlessPlatform> platform_;
  std::unique_ptr<Program> program_;
};

// A reply of status 200 with a body of known length.
Reply Page(const std::string& body);
// A page holding these rows, each a name, ": " and the rate.
std::string RatesBody(const std::vector<std::pair<std::string, std::string>>& rows,
                      const std::string& title = "Rates");

}  // namespace tessarine::testing

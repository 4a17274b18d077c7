#include "net_fixture.hpp"

#include "settings/preference_keys.hpp"

namespace tessarine::testing {

void NetFixture::Open(int server_port, bool update_rates, bool check_updates) {
  program_.reset();  // a program opened before lives on its platform: it goes first
  platform_ = std::make_unique<HeadlessPlatform>(".", &files_);
  platform_->ConnectSockets(sockets_,
                            [this](int max_wait_ms) { return sockets_.Pump(max_wait_ms); });
  platform_->platform().server_override = "127.0.0.1:" + std::to_string(server_port);
  program_ = std::make_unique<Program>(platform_->platform(), 1);
  program_->Start();
  WritePref(program_->Prefs(), prefs::UpdateExchangeRates, update_rates);
  WritePref(program_->Prefs(), prefs::CheckForUpdates, check_updates);
  platform_->TakeEvents();
}

std::vector<std::string> NetFixture::Events() {
  std::vector<std::string> kinds;
  for (const PlatformEvent& event : platform_->TakeEvents()) {
    if (event.kind == "connect" || event.kind == "connected" || event.kind == "sent" ||
        event.kind == "received" || event.kind == "socketerror")
      continue;
    kinds.push_back(event.kind + " " + event.text);
  }
  return kinds;
}

Reply Page(const std::string& body) {
  return Reply{{"HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nContent-Length: " +
                std::to_string(body.size()) + "\r\n\r\n" + body}};
}

std::string RatesBody(const std::vector<std::pair<std::string, std::string>>& rows,
                      const std::string& title) {
  std::string body = "<html><title>" + title + "</title><pre>\n";
  for (const auto& [name, rate] : rows) {
    std::string padded = rate;
    if (padded.size() < 10) padded.resize(10, ' ');
    body += name + ": " + padded + "\n";
  }
  return body + "</pre></html>\n";
}

}  // namespace tessarine::testing

#include "speech_queue.hpp"

#include <libspeechd.h>

#include <csignal>
#include <cstdlib>

namespace tessarine::desktop {

namespace {
// A service that has gone away is not asked again before this long.
constexpr std::chrono::seconds kRetryAfter{5};
}  // namespace

struct SpeechQueue::Connection {
  explicit Connection(SPDConnection* c) : spd(c) {}
  ~Connection() { spd_close(spd); }
  SPDConnection* spd;
};

SpeechQueue::SpeechQueue() {
  // The speech client writes to a socket whose server may die: a write to it must
  // fail with an error, not end the program. No part of the program uses SIGPIPE.
  std::signal(SIGPIPE, SIG_IGN);
}
SpeechQueue::~SpeechQueue() = default;

void SpeechQueue::Speak(const std::string& text) {
  if (text.empty()) return;
  const auto now = std::chrono::steady_clock::now();
  if (!connection_ && now >= next_try_) {
    next_try_ = now + kRetryAfter;
    char* error = nullptr;
    if (SPDConnection* spd =
            spd_open2("tessarine", "main", nullptr, SPD_MODE_THREADED, nullptr, 1, &error))
      connection_ = std::make_unique<Connection>(spd);
    free(error);
  }
  if (connection_ && spd_say(connection_->spd, SPD_TEXT, text.c_str()) < 0) {
    connection_.reset();  // the service went away: this text is lost, a later one retries
    next_try_ = now + kRetryAfter;
  }
}

}  // namespace tessarine::desktop

#include "speech_queue.hpp"

#include <libspeechd.h>

#include <cstdlib>

namespace tessarine::desktop {

struct SpeechQueue::Connection {
  explicit Connection(SPDConnection* c) : spd(c) {}
  ~Connection() { spd_close(spd); }
  SPDConnection* spd;
};

SpeechQueue::SpeechQueue() = default;
SpeechQueue::~SpeechQueue() = default;

void SpeechQueue::Speak(const std::string& text) {
  if (!tried_) {
    tried_ = true;
    char* error = nullptr;
    if (SPDConnection* spd =
            spd_open2("tessarine", "main", nullptr, SPD_MODE_THREADED, nullptr, 1, &error))
      connection_ = std::make_unique<Connection>(spd);
    free(error);
  }
  if (connection_ && !text.empty()) spd_say(connection_->spd, SPD_TEXT, text.c_str());
}

}  // namespace tessarine::desktop

#include "speech_queue.hpp"

#include <libspeechd.h>

namespace tessarine::desktop {

SpeechQueue::~SpeechQueue() {
  if (connection_) spd_close(connection_);
}

void SpeechQueue::Speak(const std::string& text) {
  if (!tried_) {
    tried_ = true;
    char* error = nullptr;
    connection_ = spd_open2("tessarine", "main", nullptr, SPD_MODE_THREADED, nullptr, 1, &error);
    free(error);
  }
  if (connection_ && !text.empty()) spd_say(connection_, SPD_TEXT, text.c_str());
}

}  // namespace tessarine::desktop

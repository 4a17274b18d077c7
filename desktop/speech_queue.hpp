// SpeechQueue: spoken feedback through the desktop's speech service
// (speech-dispatcher). Texts are queued at text priority, so each follows the one
// before and none interrupts another. The connection is opened at the first text,
// not at start; without a speech service the program goes on silently. A service
// that goes away is tried again at a later text, at most once every few seconds,
// so that a missing service costs no key more than a failed connect.
#pragma once

#include <chrono>
#include <memory>
#include <string>

namespace tessarine::desktop {

class SpeechQueue {
 public:
  SpeechQueue();
  SpeechQueue(const SpeechQueue&) = delete;
  SpeechQueue& operator=(const SpeechQueue&) = delete;
  ~SpeechQueue();

  void Speak(const std::string& text);

 private:
  struct Connection;  // speech-dispatcher's, kept out of this header
  std::unique_ptr<Connection> connection_;
  std::chrono::steady_clock::time_point next_try_{};  // no connect before this
};

}  // namespace tessarine::desktop

// SpeechQueue: spoken feedback through the desktop's speech service
// (speech-dispatcher). Texts are queued at text priority, so each follows the one
// before and none interrupts another. The connection is opened at the first text,
// not at start; without a speech service the program goes on silently.
#pragma once

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
  bool tried_ = false;  // one attempt to connect per run: a missing service stays missing
};

}  // namespace tessarine::desktop

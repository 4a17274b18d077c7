// Spoken and sounded feedback, and the system beep. All of it is fire and forget:
// the program never waits for a sound or a voice, and carries on silently where
// the desktop has neither.
#pragma once

#include <string>

namespace tessarine {

class Feedback {
 public:
  virtual ~Feedback() = default;
  // Queues a text for the speech service; texts follow one another, never interrupt.
  virtual void Speak(const std::string& text) = 0;
  // Plays one of the program's sounds by its resource name ("Boop", "Click", ...).
  virtual void PlaySound(const std::string& name) = 0;
  virtual void Beep() = 0;
};

}  // namespace tessarine

// The feedback module: speech and sounds, in a shared library of their own that the
// program loads at the first sound or spoken text. The libraries behind them (Qt
// Multimedia, the audio and speech clients) cost start-up time and memory that the
// first window does not need.
#pragma once

#include <string>

namespace tessarine::desktop {

class FeedbackModule {
 public:
  virtual ~FeedbackModule() = default;
  virtual void Speak(const std::string& text) = 0;
  virtual void PlaySound(const std::string& name) = 0;
  // Reads every sound ahead of the first key.
  virtual void Preload() = 0;
};

// The module's one entry point, looked up by name.
inline constexpr const char* kCreateFeedbackModule = "tessarine_create_feedback_module";
using CreateFeedbackModuleFunction = FeedbackModule* (*)(const char* sounds_folder);

}  // namespace tessarine::desktop

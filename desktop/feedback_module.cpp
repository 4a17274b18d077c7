// The feedback module's body: the speech queue and the sound player behind the
// module's interface.
#include "feedback_module.hpp"

#include <QString>

#include "sound_player.hpp"
#include "speech_queue.hpp"

namespace tessarine::desktop {

namespace {

class Feedback final : public FeedbackModule {
 public:
  explicit Feedback(const char* sounds_folder) : sounds_(QString::fromUtf8(sounds_folder)) {}
  void Speak(const std::string& text) override { speech_.Speak(text); }
  void PlaySound(const std::string& name) override { sounds_.Play(name); }
  void Preload() override { sounds_.Preload(); }

 private:
  SpeechQueue speech_;
  SoundPlayer sounds_;
};

}  // namespace

}  // namespace tessarine::desktop

extern "C" tessarine::desktop::FeedbackModule* tessarine_create_feedback_module(
    const char* sounds_folder) {
  return new tessarine::desktop::Feedback(sounds_folder);
}

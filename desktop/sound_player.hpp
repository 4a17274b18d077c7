// SoundPlayer: the eleven feedback sounds, played without waiting. Preload reads
// every sound of the folder and opens the audio stream ahead of the first key, so
// that no key waits for a file or a stream; a sound not preloaded is read the first
// time it plays. Sounds are kept for the life of the program; with no audio device
// the program goes on silently.
#pragma once

#include <QString>
#include <map>
#include <string>

#include "audio_mixer.hpp"
#include "audio_output.hpp"

namespace tessarine::desktop {

class SoundPlayer {
 public:
  // The folder of the sound files.
  explicit SoundPlayer(QString folder);
  ~SoundPlayer();

  void Preload();
  void Play(const std::string& name);

 private:
  AudioMixer::Samples Load(const std::string& name);

  QString folder_;
  std::map<std::string, AudioMixer::Samples> sounds_;  // null: no such sound
  AudioOutput output_;
};

}  // namespace tessarine::desktop

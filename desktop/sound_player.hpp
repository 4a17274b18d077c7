// SoundPlayer: the eleven feedback sounds, played without waiting. Preload reads
// every sound of the folder ahead of the first key, so that no key waits for a file
// to load; a sound not preloaded is loaded the first time it plays. Sounds are kept
// for the life of the program; with no audio device the program goes on silently.
#pragma once

#include <QString>
#include <map>
#include <memory>
#include <string>

class QSoundEffect;

namespace tessarine::desktop {

class SoundPlayer {
 public:
  // The folder of the sound files.
  explicit SoundPlayer(QString folder);
  ~SoundPlayer();

  void Preload();
  void Play(const std::string& name);

 private:
  QSoundEffect* Load(const std::string& name);

  QString folder_;
  std::map<std::string, std::unique_ptr<QSoundEffect>> effects_;
};

}  // namespace tessarine::desktop

// SoundPlayer: the eleven feedback sounds, played without waiting. Each is loaded
// the first time it plays and kept for the life of the program; with no audio
// device the program goes on silently.
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

  void Play(const std::string& name);

 private:
  QString folder_;
  std::map<std::string, std::unique_ptr<QSoundEffect>> effects_;
};

}  // namespace tessarine::desktop

#include "sound_player.hpp"

#include <QDir>
#include <QFileInfo>
#include <QSoundEffect>
#include <QUrl>

namespace tessarine::desktop {

SoundPlayer::SoundPlayer(QString folder) : folder_(std::move(folder)) {}

SoundPlayer::~SoundPlayer() = default;

void SoundPlayer::Play(const std::string& name) {
  auto& effect = effects_[name];
  if (!effect) {
    const QString path = QDir(folder_).filePath(QString::fromStdString(name) + ".wav");
    if (!QFileInfo::exists(path)) return;  // a missing file is silence, not a fault
    effect = std::make_unique<QSoundEffect>();
    effect->setSource(QUrl::fromLocalFile(path));
    effect->setVolume(0.6f);
  }
  effect->play();  // plays once loaded when it is not yet
}

}  // namespace tessarine::desktop

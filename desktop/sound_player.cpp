#include "sound_player.hpp"

#include <QDir>
#include <QFileInfo>
#include <QSoundEffect>
#include <QUrl>

namespace tessarine::desktop {

SoundPlayer::SoundPlayer(QString folder) : folder_(std::move(folder)) {}

SoundPlayer::~SoundPlayer() = default;

void SoundPlayer::Preload() {
  const QStringList files = QDir(folder_).entryList({QStringLiteral("*.wav")}, QDir::Files);
  for (const QString& file : files) Load(QFileInfo(file).completeBaseName().toStdString());
}

QSoundEffect* SoundPlayer::Load(const std::string& name) {
  auto& effect = effects_[name];
  if (!effect) {
    const QString path = QDir(folder_).filePath(QString::fromStdString(name) + ".wav");
    if (!QFileInfo::exists(path)) return nullptr;  // a missing file is silence, not a fault
    effect = std::make_unique<QSoundEffect>();
    effect->setSource(QUrl::fromLocalFile(path));
    effect->setVolume(0.6f);
  }
  return effect.get();
}

void SoundPlayer::Play(const std::string& name) {
  if (QSoundEffect* effect = Load(name)) effect->play();  // plays once loaded when it is not yet
}

}  // namespace tessarine::desktop

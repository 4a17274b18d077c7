#include "sound_player.hpp"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <string_view>

#include "audio_clip.hpp"

namespace tessarine::desktop {

namespace {
// Below full scale, so that two sounds at once rarely clip.
constexpr float kVolume = 0.6f;
}  // namespace

SoundPlayer::SoundPlayer(QString folder) : folder_(std::move(folder)) {}

SoundPlayer::~SoundPlayer() = default;

void SoundPlayer::Preload() {
  // Filtered by hand: a name filter would load the regular expression library.
  for (const QString& file : QDir(folder_).entryList(QDir::Files))
    if (file.endsWith(QStringLiteral(".wav")))
      Load(QFileInfo(file).completeBaseName().toStdString());
  output_.Open();
}

AudioMixer::Samples SoundPlayer::Load(const std::string& name) {
  const auto found = sounds_.find(name);
  if (found != sounds_.end()) return found->second;
  AudioMixer::Samples& sound = sounds_[name];
  // A missing or unreadable file is silence, not a fault.
  QFile file(QDir(folder_).filePath(QString::fromStdString(name) + ".wav"));
  if (!file.open(QIODevice::ReadOnly)) return sound;
  const QByteArray bytes = file.readAll();
  if (const auto clip =
          ReadWavClip(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size()))))
    sound = std::make_shared<const std::vector<std::int16_t>>(
        Resampled(*clip, AudioOutput::kRate).samples);
  return sound;
}

void SoundPlayer::Play(const std::string& name) {
  if (AudioMixer::Samples sound = Load(name)) output_.Play(std::move(sound), kVolume);
}

}  // namespace tessarine::desktop

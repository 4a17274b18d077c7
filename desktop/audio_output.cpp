#include "audio_output.hpp"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QIODevice>
#include <QMediaDevices>
#include <vector>

#include "audio_server_probe.hpp"

namespace tessarine::desktop {

namespace {
// The stream's buffer: what a click waits behind when another is still playing.
constexpr std::chrono::milliseconds kBuffer{20};
// How often the buffer is topped up while a sound plays: well inside the buffer, so
// that a busy moment of the event loop does not break a sound.
constexpr std::chrono::milliseconds kFeedEvery{5};
// A stream left running costs the sound server a wake-up every few milliseconds.
constexpr std::chrono::seconds kIdleAfter{3};
// A missing or broken device is not asked for again before this long, so that no
// key pays more than one failed attempt now and then.
constexpr std::chrono::seconds kRetryAfter{3};
constexpr int kBytesPerFrame = 2;
}  // namespace

AudioOutput::AudioOutput() {
  feed_.setTimerType(Qt::PreciseTimer);
  feed_.setInterval(kFeedEvery);
  QObject::connect(&feed_, &QTimer::timeout, [this] { Feed(); });
  idle_.setSingleShot(true);
  idle_.setInterval(kIdleAfter);
  QObject::connect(&idle_, &QTimer::timeout, [this] { Suspend(); });
  // The stream is opened again in the background, so that no key waits for it.
  retry_.setInterval(kRetryAfter);
  QObject::connect(&retry_, &QTimer::timeout, [this] {
    if (sink_ && sink_->state() == QAudio::StoppedState) Close();
    if (Open()) retry_.stop();
  });
}

AudioOutput::~AudioOutput() {
  retry_.stop();
  Close();
}

bool AudioOutput::Open() {
  if (sink_) return true;
  if (!retry_.isActive()) retry_.start();
  const auto now = std::chrono::steady_clock::now();
  if (now < next_open_) return false;
  next_open_ = now + kRetryAfter;
  if (!engaged_ && !SoundServerReachable()) return false;
  engaged_ = true;
  const QAudioDevice device = QMediaDevices::defaultAudioOutput();
  if (device.isNull()) return false;  // the audio library has said so once already
  QAudioFormat format;
  format.setSampleRate(kRate);
  format.setChannelCount(1);
  format.setSampleFormat(QAudioFormat::Int16);
  sink_ = std::make_unique<QAudioSink>(device, format);
  sink_->setBufferSize(format.bytesForDuration(
      std::chrono::duration_cast<std::chrono::microseconds>(kBuffer).count()));
  // A stream the server drops is replaced without waiting for a key.
  QObject::connect(sink_.get(), &QAudioSink::stateChanged, &retry_, [this](QAudio::State state) {
    if (state == QAudio::StoppedState) retry_.start();
  });
  stream_ = sink_->start();
  if (!stream_ || sink_->error() != QAudio::NoError) {
    Close();
    return false;
  }
  retry_.stop();
  idle_.start();
  return true;
}

void AudioOutput::Close() {
  feed_.stop();
  idle_.stop();
  mixer_.Clear();
  stream_ = nullptr;
  if (sink_) sink_->stop();
  sink_.reset();
}

void AudioOutput::Play(AudioMixer::Samples samples, float gain) {
  if (!Open()) return;
  if (sink_->state() == QAudio::SuspendedState) sink_->resume();
  mixer_.Start(std::move(samples), gain);
  idle_.stop();
  Feed();
  if (sink_ && !feed_.isActive()) feed_.start();
}

void AudioOutput::Feed() {
  if (!sink_) return;
  if (sink_->state() == QAudio::StoppedState) {  // the sound server went away
    Close();
    retry_.start();
    return;
  }
  // A stream the server has dropped has no free space (-1): nothing is written to it.
  const qsizetype free = sink_->bytesFree();
  if (mixer_.Playing() && free >= kBytesPerFrame) {
    std::vector<std::int16_t> block(static_cast<std::size_t>(free / kBytesPerFrame));
    mixer_.Mix(block.data(), block.size());
    stream_->write(reinterpret_cast<const char*>(block.data()),
                   static_cast<qint64>(block.size() * kBytesPerFrame));
  }
  // Once the last sound is written the stream runs dry and the server plays silence;
  // a new sound is then written at once, ahead of nothing.
  if (!mixer_.Playing()) {
    feed_.stop();
    if (!idle_.isActive()) idle_.start();
  }
}

void AudioOutput::Suspend() {
  if (sink_ && !mixer_.Playing()) sink_->suspend();
}

}  // namespace tessarine::desktop

// AudioOutput: one long-lived stream to the default audio device, fed from an
// AudioMixer. A sound is written to the stream the moment it starts, so that what
// stands between a key and its click is the stream's short buffer and the sound
// server, not the opening of a stream. With no device, or one that goes away, the
// sounds are dropped and the stream is opened again at a later sound.
#pragma once

#include <QTimer>
#include <chrono>
#include <memory>

#include "audio_mixer.hpp"

class QAudioSink;
class QIODevice;

namespace tessarine::desktop {

class AudioOutput {
 public:
  // The stream's sample rate; the sounds given to Play must be at this rate.
  static constexpr int kRate = 48000;

  AudioOutput();
  AudioOutput(const AudioOutput&) = delete;
  AudioOutput& operator=(const AudioOutput&) = delete;
  ~AudioOutput();

  // Opens the stream ahead of the first sound; false without an audio device.
  bool Open();
  void Play(AudioMixer::Samples samples, float gain);

 private:
  void Feed();
  void Close();
  void Suspend();

  AudioMixer mixer_;
  std::unique_ptr<QAudioSink> sink_;
  QIODevice* stream_ = nullptr;  // the sink's, written in push mode
  QTimer feed_;                  // tops the stream up while a sound plays
  QTimer idle_;                  // pauses the stream after a quiet while
  QTimer retry_;                 // opens the stream while there is none
  std::chrono::steady_clock::time_point next_open_{};
  bool engaged_ = false;  // the audio library has looked for the server
};

}  // namespace tessarine::desktop

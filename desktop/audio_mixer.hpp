// AudioMixer: the sounds now playing, summed into one stream of 16-bit mono samples.
// A sound started while others play is heard over them, not after them; the sum is
// clipped to the sample range. One thread uses it (the program's event loop).
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace tessarine::desktop {

class AudioMixer {
 public:
  using Samples = std::shared_ptr<const std::vector<std::int16_t>>;

  // Starts a sound at the next sample mixed, scaled by gain (0 to 1).
  void Start(Samples samples, float gain) {
    if (samples && !samples->empty()) voices_.push_back({std::move(samples), 0, gain});
  }

  bool Playing() const { return !voices_.empty(); }

  // Fills out with the next frames: the playing sounds summed, silence where none
  // plays. Sounds that end are dropped.
  void Mix(std::int16_t* out, std::size_t frames) {
    std::vector<float> sum(frames, 0.0f);
    for (Voice& v : voices_) {
      const std::size_t n = std::min(frames, v.samples->size() - v.at);
      for (std::size_t i = 0; i < n; ++i) sum[i] += (*v.samples)[v.at + i] * v.gain;
      v.at += n;
    }
    std::erase_if(voices_, [](const Voice& v) { return v.at == v.samples->size(); });
    for (std::size_t i = 0; i < frames; ++i)
      out[i] = static_cast<std::int16_t>(std::clamp(sum[i], -32768.0f, 32767.0f));
  }

  void Clear() { voices_.clear(); }

 private:
  struct Voice {
    Samples samples;
    std::size_t at;
    float gain;
  };
  std::vector<Voice> voices_;
};

}  // namespace tessarine::desktop

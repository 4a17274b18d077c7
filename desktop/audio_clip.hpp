// AudioClip: one feedback sound decoded once into 16-bit mono samples, read from a
// RIFF/WAVE file of plain PCM (8 or 16 bits, any number of channels). Kept free of
// any toolkit so that the mixer behind the audio device can be checked on its own.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace tessarine::desktop {

// A decoded sound: its sample rate and its samples, one channel.
struct AudioClip {
  int rate = 0;
  std::vector<std::int16_t> samples;
};

namespace audio_detail {
inline std::uint32_t Le(std::string_view bytes, std::size_t at, int width) {
  std::uint32_t value = 0;
  for (int i = width - 1; i >= 0; --i)
    value = value << 8 | static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(i)]);
  return value;
}
}  // namespace audio_detail

// The clip of a WAV file's bytes; nothing for a file that is not PCM WAVE or is cut
// short before its first sample. A data chunk longer than the file is read as far
// as it goes; channels are averaged into one.
inline std::optional<AudioClip> ReadWavClip(std::string_view bytes) {
  using audio_detail::Le;
  if (bytes.size() < 12 || bytes.substr(0, 4) != "RIFF" || bytes.substr(8, 4) != "WAVE")
    return std::nullopt;
  int channels = 0, bits = 0, rate = 0;
  for (std::size_t at = 12; at + 8 <= bytes.size();) {
    const std::string_view id = bytes.substr(at, 4);
    const std::size_t size = Le(bytes, at + 4, 4);
    const std::size_t body = at + 8;
    if (id == "fmt ") {
      if (size < 16 || body + 16 > bytes.size() || Le(bytes, body, 2) != 1) return std::nullopt;
      channels = static_cast<int>(Le(bytes, body + 2, 2));
      rate = static_cast<int>(Le(bytes, body + 4, 4));
      bits = static_cast<int>(Le(bytes, body + 14, 2));
      if (channels < 1 || rate < 1 || (bits != 8 && bits != 16)) return std::nullopt;
    } else if (id == "data") {
      if (channels == 0) return std::nullopt;  // the format must come first
      const std::size_t frame = static_cast<std::size_t>(channels * bits / 8);
      const std::size_t frames = std::min(size, bytes.size() - body) / frame;
      AudioClip clip{rate, {}};
      clip.samples.reserve(frames);
      for (std::size_t f = 0; f < frames; ++f) {
        int sum = 0;
        for (int c = 0; c < channels; ++c) {
          const std::size_t p = body + f * frame + static_cast<std::size_t>(c * bits / 8);
          sum += bits == 16 ? static_cast<std::int16_t>(Le(bytes, p, 2))
                            : (static_cast<int>(Le(bytes, p, 1)) - 128) * 256;
        }
        clip.samples.push_back(static_cast<std::int16_t>(sum / channels));
      }
      return clip;
    }
    at = body + size + (size & 1);  // chunks are padded to an even length
  }
  return std::nullopt;
}

// The clip at another sample rate, by linear interpolation; the same clip when the
// rates agree.
inline AudioClip Resampled(const AudioClip& clip, int rate) {
  if (clip.rate == rate || clip.samples.empty()) return clip;
  const double step = static_cast<double>(clip.rate) / rate;
  const auto count = static_cast<std::size_t>(std::floor((clip.samples.size() - 1) / step)) + 1;
  AudioClip out{rate, {}};
  out.samples.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    const double x = static_cast<double>(i) * step;
    const auto left = static_cast<std::size_t>(x);
    const std::size_t right = std::min(left + 1, clip.samples.size() - 1);
    const double t = x - static_cast<double>(left);
    out.samples.push_back(static_cast<std::int16_t>(
        std::lround(clip.samples[left] * (1 - t) + clip.samples[right] * t)));
  }
  return out;
}

}  // namespace tessarine::desktop

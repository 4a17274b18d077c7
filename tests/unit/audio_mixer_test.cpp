// The sound files' reader and the mixer behind the audio device.
#include "../../desktop/audio_mixer.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "../../desktop/audio_clip.hpp"
#include "../../desktop/audio_server_probe.hpp"

namespace tessarine::desktop {
namespace {

std::string Le(std::uint32_t v, int width) {
  std::string out;
  for (int i = 0; i < width; ++i) out += static_cast<char>(v >> (8 * i) & 0xFF);
  return out;
}

std::string Chunk(const std::string& id, const std::string& body, std::uint32_t size) {
  return id + Le(size, 4) + body + (body.size() % 2 ? std::string(1, '\0') : "");
}

std::string Fmt(int format, int channels, int rate, int bits) {
  return Chunk("fmt ",
               Le(format, 2) + Le(channels, 2) + Le(rate, 4) + Le(rate * channels * bits / 8, 4) +
                   Le(channels * bits / 8, 2) + Le(bits, 2),
               16);
}

std::string Pcm16(const std::vector<int>& samples) {
  std::string out;
  for (int s : samples) out += Le(static_cast<std::uint16_t>(s), 2);
  return out;
}

std::string Wav(const std::string& chunks) {
  return "RIFF" + Le(4 + chunks.size(), 4) + "WAVE" + chunks;
}

// A clip as "rate: samples", or "refused".
std::string Describe(const std::optional<AudioClip>& clip) {
  if (!clip) return "refused";
  std::string out = std::to_string(clip->rate) + ":";
  for (const std::int16_t s : clip->samples) out += " " + std::to_string(s);
  return out;
}

// The program reads only the sounds it makes at build time (16-bit mono PCM); of the
// files it refuses, only a damaged one can reach it.
TEST(AudioClip, ReadsPcmWave) {
  const std::string mono = Pcm16({0, 1000, -32768, 32767});
  const struct {
    const char* name;
    std::string bytes, want;
  } rows[] = {
      {"16-bit mono", Wav(Fmt(1, 1, 44100, 16) + Chunk("data", mono, 8)),
       "44100: 0 1000 -32768 32767"},
      {"stereo averaged", Wav(Fmt(1, 2, 8000, 16) + Chunk("data", Pcm16({100, 300, -5, -8}), 8)),
       "8000: 200 -6"},
      {"8-bit unsigned", Wav(Fmt(1, 1, 8000, 8) + Chunk("data", std::string("\x80\xFF\x00", 3), 3)),
       "8000: 0 32512 -32768"},
      {"odd chunk before the format is skipped with its pad byte",
       Wav(Chunk("LIST", "abc", 3) + Fmt(1, 1, 22050, 16) + Chunk("data", mono, 8)),
       "22050: 0 1000 -32768 32767"},
      {"data longer than the file reads what is there",
       Wav(Fmt(1, 1, 44100, 16) + Chunk("data", Pcm16({7, 9}), 400)), "44100: 7 9"},
      {"cut inside the header", Wav(Fmt(1, 1, 44100, 16)).substr(0, 30), "refused"},
  };
  for (const auto& row : rows) EXPECT_EQ(Describe(ReadWavClip(row.bytes)), row.want) << row.name;
}

TEST(AudioClip, ResamplesLinearly) {
  // The player asks only for the output's 48 kHz, from the program's 44.1 kHz sounds.
  const AudioClip clip{24000, {0, 100, -100, 50}};
  EXPECT_EQ(Resampled(clip, 48000).samples,
            (std::vector<std::int16_t>{0, 50, 100, 0, -100, -25, 50}));
  // Their length is kept.
  const AudioClip second{44100, std::vector<std::int16_t>(44100, 1)};
  EXPECT_NEAR(static_cast<double>(Resampled(second, 48000).samples.size()), 48000, 1);
}

TEST(AudioMixer, SumsWhatPlays) {
  using V = std::vector<std::int16_t>;
  const auto a = std::make_shared<const V>(V{1000, 2000, 3000});
  const auto b = std::make_shared<const V>(V{30000, 30000});
  AudioMixer mixer;
  V out(2, 99);
  mixer.Mix(out.data(), out.size());
  EXPECT_EQ(out, (V{0, 0})) << "silence when nothing plays";
  EXPECT_FALSE(mixer.Playing());

  mixer.Start(a, 1.0f);
  mixer.Mix(out.data(), 1);
  mixer.Start(b, 0.5f);  // starts over the rest of a
  mixer.Start(std::make_shared<const V>(), 1.0f);
  EXPECT_TRUE(mixer.Playing());
  out.assign(4, 99);
  mixer.Mix(out.data(), out.size());
  EXPECT_EQ(out, (V{2000 + 15000, 3000 + 15000, 0, 0}));
  EXPECT_FALSE(mixer.Playing()) << "both ended inside the block";

  mixer.Start(b, 1.0f);
  mixer.Start(b, 1.0f);
  mixer.Mix(out.data(), 1);
  EXPECT_EQ(out[0], 32767) << "clipped, not wrapped";
  mixer.Clear();
  EXPECT_FALSE(mixer.Playing());
}

TEST(AudioServer, SocketsToTry) {
  const struct {
    const char* name;
    const char* server;
    const char* runtime;
    std::string want;  // the paths, then "?" when some address was not understood
  } rows[] = {
      {"the user's server", nullptr, "/run/user/7", "/run/user/7/pulse/native /run/pulse/native"},
      {"an empty variable is no variable", "", "/r", "/r/pulse/native /run/pulse/native"},
      {"a socket named", "unix:/tmp/p.sock", "/r", "/tmp/p.sock"},
      {"a bare path and a machine's prefix", "/a {0123abcd}unix:/b", "/r", "/a /b"},
      {"a network address", "tcp:host:4713", "/r", "?"},
      {"a host name beside a socket", "unix:/a otherhost", "/r", "/a ?"},
      {"no runtime folder", nullptr, nullptr, "?"},
  };
  for (const auto& row : rows) {
    for (const bool unknown_before : {false, true}) {
      bool unknown = unknown_before;
      std::string got;
      for (const std::string& path : SoundServerSockets(row.server, row.runtime, unknown))
        got += (got.empty() ? "" : " ") + path;
      if (unknown) got += got.empty() ? "?" : " ?";
      EXPECT_EQ(got, row.want) << row.name;
    }
  }
}

}  // namespace
}  // namespace tessarine::desktop

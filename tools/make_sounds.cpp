// Makes the program's eleven feedback sounds as 16-bit mono WAV files, from
// nothing but arithmetic: `make_sounds FOLDER`. Each is a short synthesized
// gesture: a click, a pop, a low thump, a two-tone boop.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int kRate = 44100;
constexpr double kPi = 3.14159265358979323846;

using Samples = std::vector<double>;

Samples Silence(double seconds) {
  return Samples(static_cast<std::size_t>(seconds * kRate), 0.0);
}

// A tone sliding from f0 to f1 with an exponential decay of the given time constant.
Samples Tone(double seconds, double f0, double f1, double decay) {
  Samples s = Silence(seconds);
  double phase = 0;
  for (std::size_t i = 0; i < s.size(); ++i) {
    const double t = static_cast<double>(i) / kRate;
    const double f = f0 + (f1 - f0) * t / seconds;
    phase += 2 * kPi * f / kRate;
    const double attack = std::min(1.0, t / 0.002);
    s[i] = std::sin(phase) * std::exp(-t / decay) * attack;
  }
  return s;
}

// A burst of noise, smoothed by a one-pole low-pass (0 < smoothing < 1).
Samples Noise(double seconds, double decay, double smoothing, unsigned seed) {
  Samples s = Silence(seconds);
  std::mt19937 random(seed);
  std::uniform_real_distribution<double> white(-1.0, 1.0);
  double low = 0;
  for (std::size_t i = 0; i < s.size(); ++i) {
    const double t = static_cast<double>(i) / kRate;
    low += (white(random) - low) * (1 - smoothing);
    s[i] = low * std::exp(-t / decay);
  }
  return s;
}

Samples Mix(const Samples& a, const Samples& b, double b_at, double b_gain = 1) {
  Samples out = a;
  const std::size_t offset = static_cast<std::size_t>(b_at * kRate);
  if (out.size() < offset + b.size()) out.resize(offset + b.size(), 0.0);
  for (std::size_t i = 0; i < b.size(); ++i) out[offset + i] += b[i] * b_gain;
  return out;
}

void WriteWav(const std::string& path, Samples s, double gain) {
  double peak = 1e-9;
  for (double x : s) peak = std::max(peak, std::fabs(x));
  std::vector<std::int16_t> pcm;
  for (double x : s) pcm.push_back(static_cast<std::int16_t>(std::lround(x / peak * gain * 32767)));
  const std::uint32_t data = static_cast<std::uint32_t>(pcm.size() * 2);
  std::ofstream out(path, std::ios::binary);
  auto u32 = [&](std::uint32_t v) { out.write(reinterpret_cast<const char*>(&v), 4); };
  auto u16 = [&](std::uint16_t v) { out.write(reinterpret_cast<const char*>(&v), 2); };
  out.write("RIFF", 4);
  u32(36 + data);
  out.write("WAVEfmt ", 8);
  u32(16);
  u16(1);  // PCM
  u16(1);  // mono
  u32(kRate);
  u32(kRate * 2);
  u16(2);
  u16(16);
  out.write("data", 4);
  u32(data);
  out.write(reinterpret_cast<const char*>(pcm.data()), data);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: make_sounds FOLDER\n");
    return 2;
  }
  const std::string folder = argv[1];
  const Samples click = Noise(0.012, 0.002, 0.3, 1);
  const struct {
    const char* name;
    Samples samples;
    double gain;
  } sounds[] = {
      {"Basso", Mix(Tone(0.35, 98, 92, 0.12), Tone(0.35, 196, 184, 0.08), 0, 0.4), 0.7},
      {"Boop", Mix(Tone(0.09, 660, 660, 0.05), Tone(0.12, 440, 430, 0.05), 0.08), 0.6},
      {"Click", click, 0.6},
      {"Clickclack", Mix(click, Noise(0.015, 0.003, 0.6, 2), 0.07), 0.6},
      {"Kachick", Mix(Noise(0.03, 0.008, 0.85, 3), Noise(0.01, 0.0015, 0.1, 4), 0.035), 0.6},
      {"Keybrd", Mix(Noise(0.025, 0.005, 0.7, 5), Tone(0.03, 180, 150, 0.01), 0, 0.5), 0.6},
      {"Pop", Tone(0.045, 900, 500, 0.012), 0.6},
      {"Thump", Mix(Tone(0.12, 70, 50, 0.035), Noise(0.02, 0.004, 0.9, 6), 0, 0.3), 0.8},
      {"Tick", Tone(0.008, 4200, 4200, 0.0015), 0.5},
      {"Type", Mix(Noise(0.02, 0.003, 0.5, 7), Tone(0.04, 140, 120, 0.012), 0.004, 0.6), 0.6},
      {"Typetty", Mix(Mix(click, click, 0.05, 0.8), Tone(0.25, 1400, 1400, 0.08), 0.1, 0.5), 0.6},
  };
  for (const auto& sound : sounds)
    WriteWav(folder + "/" + sound.name + ".wav", sound.samples, sound.gain);
  return 0;
}

// Rnd: uniform numbers from 0 up to but not including 1. One source per program,
// seeded by whoever builds the program (a fixed seed in the headless driver).
#pragma once

#include <cstdint>
#include <random>

namespace tessarine {

class RandomSource {
 public:
  explicit RandomSource(std::uint64_t seed) : engine_(seed) {}
  double Rnd() { return static_cast<double>(engine_() >> 11) * 0x1.0p-53; }

 private:
  std::mt19937_64 engine_;
};

}  // namespace tessarine

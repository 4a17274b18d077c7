// Statistics of one sample, in 32-bit floats, and the text of the descriptives sheet.
#pragma once

#include <cstdint>
#include <string>

#include "statistics/sample_store.hpp"

namespace tessarine::statistics {

// The mean from a 64-bit sum, rounded once to 32 bits. An empty sample gives NaN.
float Mean(const SampleStore& store, std::int32_t sample);

// A 32-bit running sum, rounded at each value: it can lose digits the mean keeps.
float Sum(const SampleStore& store, std::int32_t sample);

// The sample variance (n - 1) with a 32-bit accumulator.
float Variance(const SampleStore& store, std::int32_t sample);

// Minimum, maximum and median of one sample's values rounded to 32 bits.
struct MinMaxMed {
  float min = 0.0f;
  float max = 0.0f;
  float med = 0.0f;
};

// Sorts a local copy of at most 255 values; an empty sample gives zeros.
MinMaxMed CalculateMinMaxMed(const SampleStore& store, std::int32_t sample);

// The sheet's text, lines ending in Chr(13), for `sample` (the sheet's own popup).
// Min, Max and Med come from `main_sample`, the main window's popup: the two
// popups are not linked. Empty when `sample` has no values.
std::string DescriptivesText(const SampleStore& store, std::int32_t sample,
                             std::int32_t main_sample);

}  // namespace tessarine::statistics

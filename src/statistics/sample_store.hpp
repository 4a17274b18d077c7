// The ten samples of the Stats page, kept as the texts the display gave.
#pragma once

#include <cstdint>
#include <string>

#include "runtime/bounded_array.hpp"

namespace tessarine::statistics {

// Samples 1 to 10, each with positions 1 to 255; row 0 and position 0 exist but stay
// empty. Nothing guards the bounds: a position past 255 throws the runtime's
// OutOfBoundsException, and nothing here catches it.
class SampleStore {
 public:
  static constexpr std::int32_t kLastSample = 10;
  static constexpr std::int32_t kLastPosition = 255;

  // The count grows first and the text is stored at the new count, so a 256th value
  // leaves the count at 256 and then throws.
  void Input(std::int32_t sample, const std::string& value_text);

  // Removes the last value, or with `all` every value. An empty sample stays empty.
  void Delete(std::int32_t sample, bool all);

  // The sample's list: each value followed by ", ", then the text of the position
  // behind the last (normally empty); empty for a sample without values. At the
  // 255th value the position behind is out of bounds and this throws.
  std::string ListText(std::int32_t sample) const;

  std::int32_t Count(std::int32_t sample) const { return counts_(sample); }
  const std::string& Text(std::int32_t sample, std::int32_t position) const {
    return texts_(sample)(position);
  }
  // The value the statistics see: the stored text read back with Val, which stops at
  // a decimal comma.
  double Value(std::int32_t sample, std::int32_t position) const;

 private:
  BoundedArray<BoundedArray<std::string, 0, kLastPosition>, 0, kLastSample> texts_;
  BoundedArray<std::int32_t, 0, kLastSample> counts_;
};

}  // namespace tessarine::statistics

// A fixed array indexed as the program's logic indexes it, from a lower to an upper
// bound inclusive. Indexing outside throws OutOfBoundsException, as the runtime does.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "runtime/exceptions.hpp"

namespace tessarine {

template <typename T, int Lower, int Upper>
class BoundedArray {
  static_assert(Lower <= Upper);

 public:
  T& operator()(int i) { return items_[Offset(i)]; }
  const T& operator()(int i) const { return items_[Offset(i)]; }
  static constexpr int LowerBound() { return Lower; }
  static constexpr int UpperBound() { return Upper; }

 private:
  static std::size_t Offset(int i) {
    if (i < Lower || i > Upper)
      throw OutOfBoundsException("index " + std::to_string(i) + " outside " +
                                 std::to_string(Lower) + ".." + std::to_string(Upper));
    return static_cast<std::size_t>(i - Lower);
  }
  std::array<T, Upper - Lower + 1> items_{};
};

}  // namespace tessarine

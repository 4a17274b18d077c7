// Builds sample stores the way the Stats page fills them: the display's value as text.
#pragma once

#include <string>
#include <vector>

#include "runtime/numbers.hpp"
#include "statistics/f_probability.hpp"
#include "statistics/sample_store.hpp"

namespace tessarine::statistics {

inline SampleStore StoreOf(const std::vector<std::vector<double>>& samples) {
  SampleStore store;
  for (std::size_t s = 0; s < samples.size(); ++s) {
    for (double x : samples[s]) store.Input(static_cast<int>(s) + 1, CStr(x, "."));
  }
  return store;
}

// Records each alert the numerics raise.
struct Alerts {
  std::vector<std::string> seen;
  MessageBox Box() {
    return [this](const std::string& text) { seen.push_back(text); };
  }
};

}  // namespace tessarine::statistics

#include "statistics/sample_store.hpp"

#include "runtime/numbers.hpp"

namespace tessarine::statistics {

void SampleStore::Input(std::int32_t sample, const std::string& value_text) {
  counts_(sample) += 1;
  texts_(sample)(counts_(sample)) = value_text;
}

void SampleStore::Delete(std::int32_t sample, bool all) {
  if (all) {
    for (std::int32_t i = 1; i <= counts_(sample); ++i) texts_(sample)(i).clear();
    counts_(sample) = 0;
    return;
  }
  texts_(sample)(counts_(sample)).clear();
  counts_(sample) -= 1;
  if (counts_(sample) < 0) counts_(sample) = 0;
}

std::string SampleStore::ListText(std::int32_t sample) const {
  const std::int32_t n = counts_(sample);
  if (n < 1) return "";
  std::string text;
  for (std::int32_t i = 1; i <= n; ++i) text += texts_(sample)(i) + ", ";
  // The list ends in ", " even after a single value; the users know it so.
  text += texts_(sample)(n + 1);
  return text;
}

double SampleStore::Value(std::int32_t sample, std::int32_t position) const {
  return Val(texts_(sample)(position));
}

}  // namespace tessarine::statistics

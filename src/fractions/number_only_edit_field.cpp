#include "fractions/number_only_edit_field.hpp"

#include "runtime/text.hpp"

namespace tessarine {

bool NumberOnlyEditFieldKeyDown(std::string_view key) {
  if (Asc(key) < 32) return false;
  return InStr("1234567890,.-", key) == 0;
}

}  // namespace tessarine

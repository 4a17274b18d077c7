// FieldValue: one field of a window's logic (a number, a text, a flag or a count),
// as a front end or the headless driver reads it by name.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace tessarine {

using FieldValue = std::variant<double, std::string, bool, std::int64_t>;

}  // namespace tessarine

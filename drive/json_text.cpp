#include "json_text.hpp"

#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>

namespace tessarine::drive {

std::string JsonNumber(double x) {
  if (std::isnan(x)) return "NaN";
  if (std::isinf(x)) return x > 0 ? "Infinity" : "-Infinity";
  char text[64];
  auto [end, ec] = std::to_chars(text, text + sizeof text, x);
  return std::string(text, end);
}

std::string JsonString(const std::string& s) {
  return nlohmann::json(s).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

}  // namespace tessarine::drive

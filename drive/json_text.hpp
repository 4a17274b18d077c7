// The JSON forms the driver prints: numbers as the shortest text that reads back
// to the same double (Infinity, -Infinity and NaN for the rest), strings escaped
// with invalid UTF-8 replaced.
#pragma once

#include <string>

namespace tessarine::drive {

std::string JsonNumber(double x);
std::string JsonString(const std::string& s);
inline std::string JsonBool(bool b) {
  return b ? "true" : "false";
}

}  // namespace tessarine::drive

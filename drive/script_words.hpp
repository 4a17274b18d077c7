// Splits one line of a driver script into words. Words are separated by blanks; a
// word may be a JSON string literal ("a b", "\r", "\u00b1"), which is decoded.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tessarine::drive {

struct Word {
  std::string text;
  bool quoted = false;  // written as a JSON string literal
};

// The words of a line, or nothing with `error` set when a literal is malformed.
std::optional<std::vector<Word>> SplitWords(const std::string& line, std::string& error);

}  // namespace tessarine::drive

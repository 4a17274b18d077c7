#include "script_words.hpp"

#include <nlohmann/json.hpp>

namespace tessarine::drive {

namespace {
bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r';
}
}  // namespace

std::optional<std::vector<Word>> SplitWords(const std::string& line, std::string& error) {
  std::vector<Word> words;
  std::size_t i = 0;
  while (i < line.size()) {
    if (IsBlank(line[i])) {
      ++i;
      continue;
    }
    if (line[i] == '"') {
      // Find the closing quote, skipping escaped characters.
      std::size_t end = i + 1;
      while (end < line.size() && line[end] != '"') end += line[end] == '\\' ? 2 : 1;
      if (end >= line.size()) {
        error = "unterminated string literal";
        return std::nullopt;
      }
      try {
        words.push_back(
            {nlohmann::json::parse(line.substr(i, end - i + 1)).get<std::string>(), true});
      } catch (const nlohmann::json::exception&) {
        error = "malformed string literal " + line.substr(i, end - i + 1);
        return std::nullopt;
      }
      i = end + 1;
      if (i < line.size() && !IsBlank(line[i])) {
        error = "a string literal must be followed by a blank";
        return std::nullopt;
      }
      continue;
    }
    std::size_t end = i;
    while (end < line.size() && !IsBlank(line[end])) ++end;
    words.push_back({line.substr(i, end - i), false});
    i = end;
  }
  return words;
}

}  // namespace tessarine::drive

// HTTPHeaders: an ordered list of header names and values, duplicates allowed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

// Entries live at index 1 and up; index 0 is a spare place that Data never shows,
// where a continuation line after the first header ends up.
class HTTPHeaders {
 public:
  std::vector<std::string> Field{""};
  std::vector<std::string> Value{""};

  // Index of the last entry; 0 when empty.
  int LastIndex() const { return static_cast<int>(Field.size()) - 1; }

  void Add(std::string_view name, std::string_view value);
  // "name: value" and CR LF for each entry, in order.
  std::string Data() const;
  void Clear();
  // The first entry's value whose name matches without case; empty if none.
  std::string Get(std::string_view name) const;
  void Parse(std::string_view text, std::string_view separator);
  // Removes the first matching entry only.
  void Remove(std::string_view name);
  // Appends the other's entries as they stand.
  void Combine(const HTTPHeaders& other);
};

}  // namespace tessarine

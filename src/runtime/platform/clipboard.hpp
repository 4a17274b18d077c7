// The desktop clipboard, text only.
#pragma once

#include <optional>
#include <string>

namespace tessarine {

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  // The clipboard's text, or nothing when it holds no text.
  virtual std::optional<std::string> Text() const = 0;
  virtual void SetText(const std::string& text) = 0;
};

}  // namespace tessarine

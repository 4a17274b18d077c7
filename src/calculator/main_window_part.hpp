// MainWindowPart: the logic a subsystem brings to the main window, most often one
// tab page's. It is made with the window, wires its own controls' handlers, reads
// and writes the keypad through the window, and lives as long as the window.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "runtime/field_value.hpp"

namespace tessarine {

class MainWindowPart {
 public:
  virtual ~MainWindowPart() = default;

  // The steps of the window's opening that restore a part's state, in the order
  // the opening runs them (the order decides the order of the preferences file).
  enum class OpenStep {
    Rates,    // after the speech menu's state
    Choices,  // after the tape's place
  };
  virtual void Restore(OpenStep) {}
  // The window is closing: the part stores what it keeps, before the file is written.
  virtual void Closing() {}
  // The start-up timer fired and the first value is on the display; `now` is the
  // short date and time of that moment.
  virtual void Started(const std::string& /*now*/) {}

  // A field of the part's logic by name, for the driver; nothing when it has none.
  virtual std::optional<FieldValue> FieldByName(std::string_view) const { return std::nullopt; }
};

}  // namespace tessarine

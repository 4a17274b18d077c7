// Reading and assigning the properties of controls, timers and windows by name,
// in the JSON forms the driver prints.
#pragma once

#include <string>

#include "names.hpp"
#include "script_words.hpp"

namespace tessarine::drive {

// The property as JSON text; ScriptError for a property the target does not have.
std::string GetProperty(const Target& target, const std::string& property);
// Assigns as program code would, raising the events such an assignment raises.
void SetProperty(const Target& target, const std::string& property, const Word& value);
// Every property of a control, as one JSON object.
std::string DumpControl(const Control& control);

}  // namespace tessarine::drive

// The driver's keyboard commands: `key` hands a text to the keyboard map as the
// window receives it; `chord` types a Linux key chord through the same translation
// as the desktop front end (shell/key_chords.hpp); `keyin` types into a text field
// through the field's own key filter.
#pragma once

#include "driver.hpp"

namespace tessarine::drive {

void AddKeyboardCommands(Driver& driver);

}  // namespace tessarine::drive

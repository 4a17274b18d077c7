// The driver's commands for windows, the mouse, dropped files, dialogs and the
// preferences: close, mouse, drop, answer, prefs.
#pragma once

namespace tessarine::drive {

class Driver;
void AddSessionCommands(Driver& driver);

}  // namespace tessarine::drive

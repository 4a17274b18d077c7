// The Sound page of the preferences window: one pop-up and switch for each class
// of sound, and what they store when the window closes.
#pragma once

#include "settings/app_context.hpp"

namespace tessarine {

class PreferencesWindow;

// Adds the page's controls to the window and wires them.
void MakeSoundControls(PreferencesWindow& window, AppContext& app);
// Writes each pop-up's sound number and each class's switch.
void StoreSounds(PreferencesWindow& window, AppContext& app);

}  // namespace tessarine

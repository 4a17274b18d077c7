// The help texts of the preferences window's constants page.
#pragma once

#include <span>

#include "calculator/help_texts.hpp"

namespace tessarine {

class Window;

std::span<const HelpText> PreferencesHelpTexts();

// Sets each tag of the table on the preferences window, in order, or empties them
// all; the window's HelptagsEnabled is this call.
void SetPreferencesHelpTags(Window& window, bool enabled);

}  // namespace tessarine

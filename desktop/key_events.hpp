// From a Qt key event to the chord that the core's translation (MapKeyForChord,
// src/shell/key_chords.hpp) takes: the key's name or its character, and the
// modifiers Ctrl, Alt and Shift.
#pragma once

#include <QString>
#include <Qt>
#include <optional>
#include <string>

#include "shell/key_chords.hpp"

namespace tessarine::desktop {

struct KeyChord {
  std::string key;  // "Return", "Enter", "Escape", "BackSpace", "space", or a character
  ChordModifiers modifiers;
};

// `qt_key` and `modifiers` as QKeyEvent gives them, `text` the characters it typed.
// Nothing for a modifier pressed alone. Under Ctrl or Alt the key is named by its
// unshifted character ("s" for Alt + Shift + S, "." for Ctrl + period), since the
// text of such an event holds a control code or a layout's Alt character.
std::optional<KeyChord> ChordForKey(int qt_key, Qt::KeyboardModifiers modifiers,
                                    const QString& text);

}  // namespace tessarine::desktop

// From a Linux key event to the text that the keyboard map (CalcWindow's
// Event_KeyDown) expects. Both front ends, the desktop one and the headless driver,
// go through here, so that a chord means the same in a test as on the desk.
//
// Alt stands for Option, Ctrl for Control (and for Command, whose shortcuts are
// Ctrl + letter here). The whole table, and why a few chords are kept for the
// menus, is in docs/keyboard.md.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessarine {

struct ChordModifiers {
  bool ctrl = false;
  bool alt = false;
  bool shift = false;
};

// What reaches the keyboard map for one chord.
struct MapKey {
  std::string text;      // handed to Event_KeyDown
  bool control = false;  // the control key as the map and the keys' methods must see it
};

// `key` is an X11 or Qt key name ("Return", "KP_Enter", "Escape", "BackSpace",
// "minus", "period", "space", ...; case ignored) or the key's character as the
// front end delivered it ("p", "P", "2", "!"), taken as given. Returns nothing when
// the chord does not reach the map: a menu shortcut, a bare modifier, a key with no
// text such as F5 or an arrow, an Alt chord outside the Option layer below.
std::optional<MapKey> MapKeyForChord(std::string_view key, ChordModifiers modifiers);

}  // namespace tessarine

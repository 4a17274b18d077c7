// The chords of docs/keyboard.md, translated as both front ends translate them: the
// text the keyboard map receives and whether control is down, or nothing at all. One
// row per kind of translation; the chords script runs the common keys and Ctrl + Shift
// + U end to end, and what each text does is the keyboard chain scripts' to check.
#include "shell/key_chords.hpp"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

constexpr ChordModifiers kNone{}, kCtrl{true, false, false}, kAlt{false, true, false},
    kShift{false, false, true}, kAltShift{false, true, true}, kCtrlShift{true, false, true},
    kCtrlAlt{true, true, false}, kCtrlAltShift{true, true, true};

struct ChordCase {
  const char* name;
  const char* key;
  ChordModifiers modifiers;
  const char* text;  // nullptr: the chord does not reach the map
  bool control;
};

constexpr ChordCase kChords[] = {
    // Keys typed bare pass their character as given, whatever its case.
    {"letter", "p", kNone, "p", false},
    {"capital letter", "X", kShift, "X", false},
    {"a character with no row", "é", kNone, "é", false},
    {"period by name", "period", kNone, ".", false},
    {"keypad digit", "KP_5", kNone, "5", false},
    {"plus-minus key", "plusminus", kNone, "±", false},
    {"keypad point", "KP_Decimal", kNone, ".", false},
    {"keypad comma", "KP_Separator", kNone, ",", false},
    {"Qt's keypad Enter", "Enter", kNone, "\x03", false},
    {"Qt's Esc, any case", "esc", kNone, "\x1b", false},
    {"Qt's Backspace", "Backspace", kNone, "\b", false},
    {"minus by name", "minus", kNone, "-", false},
    {"BackSpace", "BackSpace", kNone, "\b", false},
    {"space by name", "space", kNone, " ", false},
    {"shifted 1 as the layout types it", "!", kShift, "!", false},
    // Keys with no text, and bare modifiers.
    {"function key", "F5", kNone, nullptr, false},
    {"bare control", "Control_L", kCtrl, nullptr, false},
    {"empty", "", kNone, nullptr, false},
    // Ctrl with the digits: the digit's text with control down.
    {"ctrl keypad 2", "KP_2", kCtrl, "2", true},
    {"ctrl 4, a digit with no control row", "4", kCtrl, "4", true},
    {"ctrl period, the abort chord", "period", kCtrl, ".", true},
    // Ctrl with letters: the control code; the menus keep theirs.
    {"ctrl A", "a", kCtrl, "\x01", true},
    {"ctrl shift P, given as a capital", "P", kCtrlShift, "\x10", true},
    {"ctrl H", "h", kCtrl, "\b", true},
    {"ctrl M", "m", kCtrl, "\r", true},
    {"ctrl hyphen by character", "-", kCtrl, "\x1f", true},
    {"ctrl minus by name", "minus", kCtrl, "\x1f", true},
    {"ctrl underscore", "underscore", kCtrlShift, "\x1f", true},
    {"ctrl shift Z", "Z", kCtrlShift, nullptr, false},
    // Alt: the Option layer.
    {"alt P", "p", kAlt, "π", false},
    {"alt 2", "2", kAlt, "™", false},
    {"alt 3", "3", kAlt, "£", false},
    {"alt S", "s", kAlt, "ß", false},
    {"alt D", "d", kAlt, "¶", false},
    {"ctrl alt S: hyperbolic sine", "s", kCtrlAlt, "ß", true},
    {"alt Y", "y", kAlt, "¥", false},
    {"alt C", "c", kAlt, "ç", false},
    {"alt T", "t", kAlt, "†", false},
    {"alt shift C", "C", kAltShift, "Ç", false},
    {"alt shift T", "T", kAltShift, "ˇ", false},
    {"alt shift, letter given small", "s", kAltShift, "Í", false},
    {"alt capital without shift", "T", kAlt, "†", false},
    {"ctrl alt shift T: hyperbolic arc tangent", "T", kCtrlAltShift, "ˇ", true},
    {"alt with no Option row", "f", kAlt, nullptr, false},
    {"alt shift P", "P", kAltShift, nullptr, false},
    {"alt Return", "Return", kAlt, nullptr, false},
    {"alt period", "period", kAlt, nullptr, false},
};

TEST(KeyChords, EveryChordOfTheTable) {
  // Ctrl with the menus' letters (the menus keep them) is the chords script's.
  for (const ChordCase& c : kChords) {
    SCOPED_TRACE(c.name);
    const auto key = MapKeyForChord(c.key, c.modifiers);
    if (!c.text) {
      EXPECT_FALSE(key.has_value()) << "gave \"" << key->text << "\"";
      continue;
    }
    if (!key) {
      ADD_FAILURE() << "the chord did not reach the map";
      continue;
    }
    EXPECT_EQ(key->text, c.text);
    EXPECT_EQ(key->control, c.control);
  }
}

}  // namespace
}  // namespace tessarine

#include "shell/key_chords.hpp"

#include "runtime/text.hpp"

namespace tessarine {

namespace {

// Keys known by name, and the text each one types. Names not listed (F5, Tab, the
// arrows, the modifiers themselves) type nothing the map could use.
struct NamedKey {
  std::string_view name;  // X11 keysym or Qt key name, compared ignoring case
  int code;               // the character it types
};

constexpr NamedKey kNamedKeys[] = {
    {"Return", 13},      {"KP_Enter", 3},       {"Enter", 3},  // Qt's Enter is the keypad's
    {"Escape", 27},      {"Esc", 27},           {"BackSpace", 8},     {"space", ' '},
    {"minus", '-'},      {"underscore", '_'},   {"period", '.'},      {"comma", ','},
    {"plus", '+'},       {"equal", '='},        {"asterisk", '*'},    {"slash", '/'},
    {"exclam", '!'},     {"plusminus", 0xB1},   {"KP_0", '0'},        {"KP_1", '1'},
    {"KP_2", '2'},       {"KP_3", '3'},         {"KP_4", '4'},        {"KP_5", '5'},
    {"KP_6", '6'},       {"KP_7", '7'},         {"KP_8", '8'},        {"KP_9", '9'},
    {"KP_Add", '+'},     {"KP_Subtract", '-'},  {"KP_Multiply", '*'}, {"KP_Divide", '/'},
    {"KP_Decimal", '.'}, {"KP_Separator", ','}, {"KP_Equal", '='},
};

// The Option layer of a US Mac keyboard, for the keys the map knows. Letters are
// matched ignoring case; the Shift flag picks the row.
struct OptionKey {
  char key;
  bool shift;
  int code;
};

constexpr OptionKey kOptionLayer[] = {
    {'p', false, 0x03C0},  // π      delta percent
    {'2', false, 0x2122},  // ™      square root
    {'3', false, 0x00A3},  // £      cube root
    {'y', false, 0x00A5},  // ¥      n-th root
    {'s', false, 0x00DF},  // ß      sine
    {'c', false, 0x00E7},  // ç      cosine
    {'t', false, 0x2020},  // †      tangent
    {'d', false, 182},     // ¶      statistics delete (the Mac Roman code of ∂)
    {'s', true, 0x00CD},   // Í      arc sine
    {'c', true, 0x00C7},   // Ç      arc cosine
    {'t', true, 0x02C7},   // ˇ      arc tangent
};

// Ctrl + these letters, with or without Shift, are the menus' shortcuts: Copy,
// Paste, Quit, Show Tape, Undo, Cut. Ctrl + Shift + U is Check for Updates.
constexpr std::string_view kMenuLetters = "cvqtzx";
constexpr char kUpdatesLetter = 'u';

constexpr int kControlHyphen = 31;

int LowerAscii(int code) {
  return code >= 'A' && code <= 'Z' ? code - 'A' + 'a' : code;
}

bool IsAsciiLetter(int code) {
  const int c = LowerAscii(code);
  return c >= 'a' && c <= 'z';
}

// The character the key types, before any modifier; nullopt for a key with none.
std::optional<std::string> KeyText(std::string_view key) {
  if (key.empty()) return std::nullopt;
  if (Len(key) == 1) return std::string(key);
  for (const NamedKey& named : kNamedKeys)
    if (StrEq(key, named.name)) return Chr(named.code);
  return std::nullopt;
}

}  // namespace

std::optional<MapKey> MapKeyForChord(std::string_view key, ChordModifiers modifiers) {
  const std::optional<std::string> text = KeyText(key);
  if (!text) return std::nullopt;
  const int code = Asc(*text);

  // Option first, so that Ctrl + Alt + S is the sine with control down: the
  // trigonometric methods read the control key themselves (hyperbolic functions).
  if (modifiers.alt) {
    for (const OptionKey& option : kOptionLayer)
      if (LowerAscii(code) == option.key && modifiers.shift == option.shift)
        return MapKey{Chr(option.code), modifiers.ctrl};
    return std::nullopt;
  }

  if (modifiers.ctrl) {
    if (IsAsciiLetter(code)) {
      const char letter = static_cast<char>(LowerAscii(code));
      if (kMenuLetters.find(letter) != std::string_view::npos) return std::nullopt;
      if (letter == kUpdatesLetter && modifiers.shift) return std::nullopt;
      return MapKey{Chr(letter - 'a' + 1), true};  // the letter's control code, A = 1
    }
    if (code == '-' || code == '_') return MapKey{Chr(kControlHyphen), true};
    return MapKey{*text, true};  // digits and the rest: the text, control held
  }

  return MapKey{*text, false};
}

}  // namespace tessarine

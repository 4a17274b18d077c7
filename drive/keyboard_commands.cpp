#include "keyboard_commands.hpp"

#include <array>
#include <string_view>

#include "names.hpp"
#include "runtime/text.hpp"
#include "shell/key_chords.hpp"

namespace tessarine::drive {

namespace {

// The modifiers a keyboard command may hold, as `hold` names them.
constexpr std::array<std::string_view, 4> kModifiers = {"ctrl", "alt", "shift", "cmd"};

bool IsHeld(HeadlessPlatform& platform, std::string_view modifier) {
  const KeyboardState& keyboard = platform.platform().keyboard;
  if (modifier == "ctrl") return keyboard.AsyncControlKey();
  if (modifier == "alt") return keyboard.AsyncOptionKey();
  if (modifier == "shift") return keyboard.AsyncShiftKey();
  // The command key reads as down while ctrl is: look past ctrl for a moment.
  if (!keyboard.AsyncControlKey()) return keyboard.AsyncCommandKey();
  platform.Hold("ctrl", false);
  const bool command = keyboard.AsyncCommandKey();
  platform.Hold("ctrl", true);
  return command;
}

// Holds the modifiers for one event; afterwards releases those it pressed itself,
// so that what `hold` holds stays held.
class HeldForEvent {
 public:
  HeldForEvent(HeadlessPlatform& platform, const std::vector<std::string_view>& modifiers)
      : platform_(platform) {
    for (std::string_view modifier : modifiers) {
      if (IsHeld(platform_, modifier)) continue;
      platform_.Hold(std::string(modifier), true);
      pressed_.push_back(modifier);
    }
  }
  ~HeldForEvent() {
    for (std::string_view modifier : pressed_) platform_.Hold(std::string(modifier), false);
  }
  HeldForEvent(const HeldForEvent&) = delete;
  HeldForEvent& operator=(const HeldForEvent&) = delete;

 private:
  HeadlessPlatform& platform_;
  std::vector<std::string_view> pressed_;
};

// The modifier words after the key, each one of `allowed`; ScriptError otherwise.
std::vector<std::string_view> Modifiers(const std::vector<Word>& args, std::size_t allowed) {
  std::vector<std::string_view> modifiers;
  for (std::size_t i = 1; i < args.size(); ++i) {
    bool known = false;
    for (std::size_t m = 0; m < allowed; ++m)
      if (!args[i].quoted && args[i].text == kModifiers[m]) {
        modifiers.push_back(kModifiers[m]);
        known = true;
      }
    if (!known) throw ScriptError("unknown modifier " + args[i].text);
  }
  return modifiers;
}

bool Has(const std::vector<std::string_view>& modifiers, std::string_view modifier) {
  for (std::string_view m : modifiers)
    if (m == modifier) return true;
  return false;
}

void TypeKey(Driver& driver, const std::string& text,
             const std::vector<std::string_view>& modifiers) {
  Window& window = FindWindow(driver.Program(), "CalcWindow");
  const HeldForEvent held(driver.Platform(), modifiers);
  window.KeyDown(text);
}

// One key typed into a focused text field. The field's KeyDown sees it first; a key
// it lets through edits the text at the caret as the field does: a backspace takes
// the selection or the character before the caret, other control keys change nothing.
void TypeIntoField(Control& field, const std::string& key) {
  if (field.UserKeyDown(key) || !field.Enabled()) return;
  if (key == "\b") {
    if (field.SelLength() == 0) {
      if (field.SelStart() == 0) return;
      field.UserSetSelection(field.SelStart() - 1, 1);
    }
  } else if (Asc(key) < 32) {
    return;
  }
  const std::string typed = key == "\b" ? "" : key;
  field.Owner().Dispatch(field.Name() + "_TextChange", [&] { field.SetSelText(typed); });
}

}  // namespace

void AddKeyboardCommands(Driver& driver) {
  driver.AddCommand("key", [&driver](const std::vector<Word>& args, std::ostream&) {
    if (args.empty()) throw ScriptError("usage: key TEXT [ctrl] [alt] [shift] [cmd]");
    TypeKey(driver, args[0].text, Modifiers(args, 4));
  });
  // Several keys typed one after another, each with no modifier added.
  driver.AddCommand("type", [&driver](const std::vector<Word>& args, std::ostream&) {
    if (args.empty()) throw ScriptError("usage: type TEXT...");
    for (const Word& text : args) TypeKey(driver, text.text, {});
  });
  // Keys typed into a text field one character at a time, the caret first put at
  // the end of its text as a click after the text puts it.
  driver.AddCommand("keyin", [&driver](const std::vector<Word>& args, std::ostream&) {
    if (args.size() != 2) throw ScriptError("usage: keyin CONTROL TEXT");
    Control* field = Resolve(driver.Program(), args[0].text).control;
    if (!field || !IsEditable(field->Kind()))
      throw ScriptError(args[0].text + " is not a text field");
    field->UserSetSelection(Len(field->Text()), 0);
    const std::string& text = args[1].text;
    for (int i = 1; i <= Len(text); ++i) TypeIntoField(*field, Mid(text, i, 1));
  });
  driver.AddCommand("chord", [&driver](const std::vector<Word>& args, std::ostream&) {
    if (args.empty()) throw ScriptError("usage: chord KEY [ctrl] [alt] [shift]");
    const auto modifiers = Modifiers(args, 3);
    const auto key = MapKeyForChord(
        args[0].text, {Has(modifiers, "ctrl"), Has(modifiers, "alt"), Has(modifiers, "shift")});
    if (!key) return;  // the chord does not reach the map
    std::vector<std::string_view> held;
    if (key->control) held.push_back("ctrl");
    if (Has(modifiers, "alt")) held.push_back("alt");
    if (Has(modifiers, "shift")) held.push_back("shift");
    TypeKey(driver, key->text, held);
  });
}

}  // namespace tessarine::drive

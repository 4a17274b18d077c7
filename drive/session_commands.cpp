#include "session_commands.hpp"

#include <charconv>

#include "driver.hpp"
#include "json_text.hpp"
#include "names.hpp"
#include "runtime/text.hpp"
#include "shell/tessarine_app.hpp"

namespace tessarine::drive {

namespace {

int IntWord(const Word& word) {
  int value = 0;
  const std::string& s = word.text;
  auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), value);
  if (ec != std::errc() || end != s.data() + s.size())
    throw ScriptError("expected a whole number, got " + s);
  return value;
}

bool IsButton(ControlKind kind) {
  return kind == ControlKind::BevelButton || kind == ControlKind::CalcBevelButton ||
         kind == ControlKind::PushButton;
}

template <typename T>
void PrintFamily(std::ostream& out, const char* family, const std::vector<PrefsEntry<T>>& entries,
                 std::string (*value)(const T&), const std::vector<Word>& keys) {
  for (const auto& e : entries) {
    bool wanted = keys.empty();
    for (const Word& key : keys) wanted = wanted || key.text == e.key;
    if (!wanted) continue;
    out << "{\"family\":\"" << family << "\",\"key\":" << JsonString(e.key)
        << ",\"value\":" << value(e.value) << ",\"scrambled\":" << JsonBool(e.scrambled) << "}\n";
  }
}

}  // namespace

void AddSessionCommands(Driver& driver) {
  // Closing a window as the user does; the main window's close ends the program.
  driver.AddCommand("close", [&driver](const std::vector<Word>& args, std::ostream&) {
    if (args.size() != 1) throw ScriptError("usage: close WINDOW");
    Window& window = FindWindow(driver.Program(), args[0].text);
    if (StrEq(window.Name(), "TapeWindow")) {
      // The tape's close box hides it, as its menu item does.
      window.Dispatch("close TapeWindow", [&] {
        if (!driver.Program().App().MenuCommand("FileTapeControlMenu")) window.SetVisible(false);
      });
      return;
    }
    window.Close();
  });

  // The mouse on a control, at a point in the control's own coordinates.
  driver.AddCommand("mouse", [&driver](const std::vector<Word>& args, std::ostream&) {
    if (args.size() < 2)
      throw ScriptError("usage: mouse CONTROL down|up|move X Y, or mouse CONTROL exit");
    const Target target = Resolve(driver.Program(), args[0].text);
    if (!target.control) throw ScriptError(args[0].text + " is not a control");
    Control& c = *target.control;
    const std::string& what = args[1].text;
    if (what == "exit") {
      if (args.size() != 2) throw ScriptError("usage: mouse CONTROL exit");
      c.UserMouseExit();
      return;
    }
    if (args.size() != 4 || (what != "down" && what != "up" && what != "move"))
      throw ScriptError("usage: mouse CONTROL down|up|move X Y");
    const int x = IntWord(args[2]), y = IntWord(args[3]);
    c.Owner().SetMousePosition(c.Left() + x, c.Top() + y);
    const bool inside = x >= 0 && y >= 0 && x < c.Width() && y < c.Height();
    if (what == "move") {
      c.UserMouseMove(x, y);
    } else if (what == "down") {
      c.UserMouseDown(x, y);
      if (c.Kind() == ControlKind::Listbox && inside && !c.Rows().empty()) {
        // The list's own hit test: rows of equal height.
        const int row = y * static_cast<int>(c.Rows().size()) / c.Height();
        c.UserCellClick(row, 0, x, y);
      }
    } else {
      c.UserMouseUp(x, y);
      if (IsButton(c.Kind()) && inside) c.Click();  // a click is a press and release inside
    }
  });

  // Files dropped on a control that takes them (the tape does).
  driver.AddCommand("drop", [&driver](const std::vector<Word>& args, std::ostream&) {
    if (args.size() < 2) throw ScriptError("usage: drop CONTROL FILE...");
    const Target target = Resolve(driver.Program(), args[0].text);
    if (!target.control || !target.control->events.DropObject)
      throw ScriptError(args[0].text + " takes no dropped files");
    std::vector<std::string> paths;
    for (std::size_t i = 1; i < args.size(); ++i) paths.push_back(args[i].text);
    target.control->UserDropFiles(paths);
  });

  // The user's answer to the next dialog: `answer TEXT`, or `answer` alone to cancel.
  driver.AddCommand("answer", [&driver](const std::vector<Word>& args, std::ostream&) {
    if (args.size() > 1) throw ScriptError("usage: answer [TEXT]");
    driver.Platform().QueueAnswer(args.empty() ? std::nullopt
                                               : std::optional<std::string>(args[0].text));
  });

  // A setting changed and written at once, as the preferences window does on its
  // close: `setpref boolean|number|string KEY VALUE`.
  driver.AddCommand("setpref", [&driver](const std::vector<Word>& args, std::ostream&) {
    if (args.size() != 3) throw ScriptError("usage: setpref boolean|number|string KEY VALUE");
    PrefsModule& prefs = driver.Program().Prefs();
    const std::string& family = args[0].text;
    const std::string& key = args[1].text;
    if (family == "boolean" && (args[2].text == "true" || args[2].text == "false"))
      prefs.SetBooleanValue(key, args[2].text == "true", true);
    else if (family == "number")
      prefs.SetNumberValue(key, IntWord(args[2]), true);
    else if (family == "string")
      prefs.SetStringValue(key, args[2].text, true);
    else
      throw ScriptError("usage: setpref boolean|number|string KEY VALUE");
    prefs.WriteOut();
  });

  // The entries of the preferences store as they are in memory: every one, or
  // those of the keys given.
  driver.AddCommand("prefs", [&driver](const std::vector<Word>& args, std::ostream& out) {
    const PrefsData& data = driver.Program().Prefs().Data();
    PrintFamily<bool>(
        out, "boolean", data.booleans, [](const bool& b) { return JsonBool(b); }, args);
    PrintFamily<std::string>(
        out, "string", data.strings, [](const std::string& s) { return JsonString(s); }, args);
    PrintFamily<std::string>(
        out, "color", data.colors, [](const std::string& s) { return JsonString(s); }, args);
    PrintFamily<double>(
        out, "number", data.numbers, [](const double& d) { return JsonNumber(d); }, args);
  });
}

}  // namespace tessarine::drive

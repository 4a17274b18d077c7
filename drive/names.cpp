#include "names.hpp"

#include <charconv>

#include "calculator/calc_window.hpp"
#include "calculator/tape_window.hpp"
#include "driver.hpp"
#include "runtime/text.hpp"

namespace tessarine::drive {

namespace {

// "Name(12)" -> Name and 12; "Name" -> Name and -1.
void SplitIndex(const std::string& text, std::string& name, int& index) {
  index = -1;
  name = text;
  const auto open = text.find('(');
  if (open == std::string::npos) return;
  if (text.back() != ')' || open == 0) throw ScriptError("malformed name " + text);
  const std::string digits = text.substr(open + 1, text.size() - open - 2);
  auto [end, ec] = std::from_chars(digits.data(), digits.data() + digits.size(), index);
  if (ec != std::errc() || end != digits.data() + digits.size() || digits.empty())
    throw ScriptError("malformed index in " + text);
  name = text.substr(0, open);
}

}  // namespace

Window& FindWindow(Program& program, const std::string& name) {
  // Named, the tape comes into being as the program's own accessor makes it.
  if (StrEq(name, TapeWindow::kName)) return program.GetTapeWindow();
  if (Window* window = program.FindOpenWindow(name)) return *window;
  if (program.Windows().Knows(name)) throw ScriptError("window " + name + " is not open");
  throw ScriptError("unknown window " + name);
}

Target Resolve(Program& program, const std::string& name) {
  std::string window_name = "CalcWindow";
  std::string rest = name;
  const auto dot = name.find('.');
  if (dot != std::string::npos) {
    window_name = name.substr(0, dot);
    rest = name.substr(dot + 1);
  } else if (program.Windows().Knows(name)) {
    return Target{&FindWindow(program, name), nullptr, nullptr};
  }
  Window& window = FindWindow(program, window_name);
  std::string control_name;
  int index = -1;
  SplitIndex(rest, control_name, index);
  if (Control* control = window.FindControl(control_name, index))
    return Target{&window, control, nullptr};
  if (index < 0)
    if (Timer* timer = window.FindTimer(control_name)) return Target{&window, nullptr, timer};
  throw ScriptError("unknown control " + name);
}

void SplitProperty(const std::string& path, std::string& target, std::string& property) {
  const auto dot = path.rfind('.');
  if (dot == std::string::npos || dot == 0 || dot + 1 == path.size())
    throw ScriptError("expected Control.Property, got " + path);
  target = path.substr(0, dot);
  property = path.substr(dot + 1);
}

}  // namespace tessarine::drive

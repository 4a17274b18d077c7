// What a name in a script refers to: "Display", "MemoryLabel(10)",
// "TapeWindow.TapeEditField", each optionally followed by ".Property".
#pragma once

#include <string>

#include "runtime/control.hpp"
#include "runtime/timer.hpp"
#include "runtime/window.hpp"
#include "shell/program.hpp"

namespace tessarine::drive {

struct Target {
  Window* window = nullptr;
  Control* control = nullptr;  // a control, or
  Timer* timer = nullptr;      // a timer, or neither: the window itself
};

// The open window of that name; ScriptError when none.
Window& FindWindow(Program& program, const std::string& name);
// Resolves "Window.Name(index)" or "Name(index)" (on CalcWindow); ScriptError when
// nothing has that name.
Target Resolve(Program& program, const std::string& name);
// Splits "Target.Property" at its last dot.
void SplitProperty(const std::string& path, std::string& target, std::string& property);

}  // namespace tessarine::drive

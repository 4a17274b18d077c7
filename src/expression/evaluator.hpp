// Runs compiled stack code.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "expression/program.hpp"

namespace tessarine::expression {

// Where and why a running script stopped.
struct RunFault {
  int line = 1;
  std::string message;
};

// Runs the program to its end, calling `print` for each Print executed, or stops at
// the first fault. Each call has stacks of its own, so `print` may run another program.
std::optional<RunFault> Execute(const Program& program,
                                const std::function<void(const std::string&)>& print);

}  // namespace tessarine::expression

// Compiles a script into stack code, checking names, argument counts and types.
#pragma once

#include <optional>
#include <string_view>

#include "expression/compile_error.hpp"
#include "expression/program.hpp"

namespace tessarine::expression {

// Fills `program` (cleared first) from the whole source, or returns the first fault.
// No recursion: parentheses nest as deep as memory allows.
std::optional<CompileError> Compile(std::string_view source, Program& program);

}  // namespace tessarine::expression

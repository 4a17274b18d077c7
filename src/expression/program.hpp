// A compiled script: code for a stack machine with a stack of numbers and one of texts.
#pragma once

#include <cstddef>
#include <vector>

#include "expression/functions.hpp"

namespace tessarine::expression {

enum class OpCode {
  kPushNumber,  // pushes `number`
  kNegate,
  kAdd,
  kSubtract,
  kMultiply,
  kDivide,
  kIntegerDivide,  // may fail: divisor zero
  kModulo,         // may fail: divisor zero
  kPower,
  kCall1,   // `function` of the top number
  kCall2,   // `function` of the two top numbers, the first argument below
  kStr,     // the top number to its text
  kConcat,  // the two top texts joined
  kPrint,   // raises Print with the top text
};

// One instruction; `line` is the script line it came from, for runtime errors.
struct Instruction {
  OpCode op = OpCode::kPushNumber;
  Function function = Function::kAbs;
  int line = 1;
  double number = 0;
};

// The instructions and the deepest each stack gets while they run.
struct Program {
  std::vector<Instruction> code;
  std::size_t max_numbers = 0;
  std::size_t max_texts = 0;
};

}  // namespace tessarine::expression

#include "expression/evaluator.hpp"

#include <utility>
#include <vector>

#include "runtime/arithmetic.hpp"
#include "runtime/numbers.hpp"

namespace tessarine::expression {

std::optional<RunFault> Execute(const Program& program,
                                const std::function<void(const std::string&)>& print) {
  // The compiler proved the depths and the types, so the stacks are indexed unchecked.
  std::vector<double> numbers(program.max_numbers);
  std::vector<std::string> texts(program.max_texts);
  std::size_t n = 0;  // numbers in use
  std::size_t t = 0;  // texts in use
  for (const Instruction& in : program.code) {
    switch (in.op) {
      case OpCode::kPushNumber:
        numbers[n++] = in.number;
        break;
      case OpCode::kNegate:
        numbers[n - 1] = -numbers[n - 1];
        break;
      case OpCode::kAdd:
        --n;
        numbers[n - 1] = numbers[n - 1] + numbers[n];
        break;
      case OpCode::kSubtract:
        --n;
        numbers[n - 1] = numbers[n - 1] - numbers[n];
        break;
      case OpCode::kMultiply:
        --n;
        numbers[n - 1] = numbers[n - 1] * numbers[n];
        break;
      case OpCode::kDivide:
        --n;
        numbers[n - 1] = numbers[n - 1] / numbers[n];
        break;
      case OpCode::kPower:
        --n;
        numbers[n - 1] = Pow(numbers[n - 1], numbers[n]);
        break;
      case OpCode::kIntegerDivide:
        --n;
        if (IntegerDivisorIsZero(numbers[n])) return RunFault{in.line, "Division by zero"};
        numbers[n - 1] = IntegerDivide(numbers[n - 1], numbers[n]);
        break;
      case OpCode::kModulo:
        --n;
        if (numbers[n] == 0) return RunFault{in.line, "Division by zero"};
        numbers[n - 1] = Modulo(numbers[n - 1], numbers[n]);
        break;
      case OpCode::kCall1:
        numbers[n - 1] = Apply(in.function, numbers[n - 1]);
        break;
      case OpCode::kCall2:
        --n;
        numbers[n - 1] = Apply(in.function, numbers[n - 1], numbers[n]);
        break;
      case OpCode::kStr:
        texts[t++] = Str(numbers[--n]);
        break;
      case OpCode::kConcat:
        --t;
        texts[t - 1] += texts[t];
        break;
      case OpCode::kPrint: {
        const std::string text = std::move(texts[--t]);
        if (print) print(text);
        break;
      }
    }
  }
  return std::nullopt;
}

}  // namespace tessarine::expression

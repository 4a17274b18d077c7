// What does not compile prints nothing: the Expression tab then shows an empty result,
// and never the kind or the place of the fault, which it is given and ignores. What
// fails while running stops the run (its box is the tab's) and leaves the engine working.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "run_script.hpp"

namespace tessarine::expression {
namespace {

TEST(CompileErrors, PrintNothingAndRunNothing) {
  const char* const kTyped[] = {
      "",
      "Click here to enter an expression to solve using your keyboard. For example: "
      "4*((2+3)-tan(2))",
      "2*pi", "4*", "(1", "1))", "2\u00d73", "1=1", "2 3", "1.2.3", "+1", "abs 2", "2 mod",
      "max(1,)", "(1,2)", "2(3)",
      // Text where a number belongs, and a number where text belongs.
      "1) + (2", "1) * Str(2", "Str(1)", "1) + 0 + (1",
      // Lines: a formula broken over two, a fault on the second, a statement of no use.
      "1\n+2", "1)\r\n\u00e9x", "1)\nLet x = 1",
      // Wrong numbers of arguments.
      "abs()", "sqrt(4, 2)", "pow(2)", "max(1, 2, 3)", "atan(1, 2)", "atan2(1)", "1) + Str(1, 2",
      ")("};
  for (const char* typed : kTyped) {
    const Outcome o = RunTyped(typed);
    EXPECT_EQ(o.compile_errors, 1) << typed;
    EXPECT_TRUE(o.printed.empty()) << typed;
    EXPECT_EQ(o.runtime_errors, 0) << typed;
  }
}

TEST(RuntimeErrors, StopTheRunAndLeaveTheEngineWorking) {
  const struct {
    const char* typed;
    std::vector<std::string> printed_before;
  } kCases[] = {{"1\\0", {}},
                {"1\\0.5", {}},  // the divisor cut to zero
                {"5 mod 0", {}},
                {"7)\nPrint Str(1 mod (2-2)", {"7"}}};
  for (const auto& c : kCases) {
    ScriptEngine engine;
    const Outcome o = RunSource(engine, "Print Str(" + std::string(c.typed) + ")");
    EXPECT_EQ(o.runtime_errors, 1) << c.typed;
    EXPECT_EQ(o.compile_errors, 0) << c.typed;
    EXPECT_EQ(o.printed, c.printed_before) << c.typed;
    EXPECT_EQ(RunSource(engine, "Print Str(2+2)").printed, std::vector<std::string>{"4"});
  }
}

}  // namespace
}  // namespace tessarine::expression

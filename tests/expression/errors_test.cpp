// What does not compile, where the fault is reported, and what fails while running.
#include <gtest/gtest.h>

#include <ostream>

#include "run_script.hpp"

namespace tessarine::expression {
namespace {

struct CompileCase {
  const char* name;
  const char* typed;
  CompileErrorKind kind;
  int line;
  int column;  // in the wrapped source: the typed text starts at column 11
  friend std::ostream& operator<<(std::ostream& os, const CompileCase& c) { return os << c.name; }
};

class CompileErrors : public testing::TestWithParam<CompileCase> {};

TEST_P(CompileErrors, ReportKindAndPositionAndRunNothing) {
  const CompileCase& c = GetParam();
  const Outcome o = RunTyped(c.typed);
  EXPECT_EQ(o.compile_errors, 1);
  EXPECT_EQ(o.error_message, CompileErrorText(c.kind));
  EXPECT_EQ(o.error_line, c.line);
  EXPECT_EQ(o.error_column, c.column);
  EXPECT_TRUE(o.printed.empty());
  EXPECT_EQ(o.runtime_errors, 0);
}

using K = CompileErrorKind;
INSTANTIATE_TEST_SUITE_P(
    Sources, CompileErrors,
    testing::Values(CompileCase{"EmptyField", "", K::kArgumentCount, 1, 11},
                    CompileCase{
                        "Hint",
                        "Click here to enter an expression to solve using your keyboard. For "
                        "example: 4*((2+3)-tan(2))",
                        K::kUnknownName, 1, 11},
                    CompileCase{"Pi", "2*pi", K::kUnknownName, 1, 13},
                    CompileCase{"UnfinishedProduct", "4*", K::kSyntax, 1, 13},
                    CompileCase{"OpenParenthesis", "(1", K::kUnfinished, 1, 14},
                    CompileCase{"ExtraParenthesis", "1))", K::kExtraParenthesis, 1, 13},
                    CompileCase{"TimesSign", "2\u00d73", K::kInvalidCharacter, 1, 12},
                    CompileCase{"Comparison", "1=1", K::kInvalidCharacter, 1, 12},
                    CompileCase{"TwoNumbers", "2 3", K::kSyntax, 1, 13},
                    CompileCase{"TwoPoints", "1.2.3", K::kSyntax, 1, 14},
                    CompileCase{"UnaryPlus", "+1", K::kSyntax, 1, 11},
                    CompileCase{"CallWithoutParentheses", "abs 2", K::kSyntax, 1, 15},
                    CompileCase{"ModWithoutDivisor", "2 mod", K::kSyntax, 1, 16},
                    CompileCase{"EmptyArgument", "max(1,)", K::kSyntax, 1, 17},
                    CompileCase{"CommaOutsideCall", "(1,2)", K::kSyntax, 1, 13},
                    CompileCase{"ImplicitProduct", "2(3)", K::kSyntax, 1, 12},
                    CompileCase{"TextPlusNumber", "1) + (2", K::kTypeMismatch, 1, 14},
                    CompileCase{"TextTimesText", "1) * Str(2", K::kTypeMismatch, 1, 14},
                    CompileCase{"StrOfText", "Str(1)", K::kTypeMismatch, 1, 7},
                    CompileCase{"PrintOfNumber", "1) + 0 + (1", K::kTypeMismatch, 1, 14},
                    CompileCase{"LineBreakInFormula", "1\n+2", K::kUnfinished, 1, 12},
                    CompileCase{"FaultOnSecondLine", "1)\r\n\u00e9x", K::kInvalidCharacter, 2, 1},
                    CompileCase{"UnknownStatement", "1)\nLet x = 1", K::kUnknownName, 2, 1}),
    [](const testing::TestParamInfo<CompileCase>& info) { return std::string(info.param.name); });

struct RuntimeCase {
  const char* name;
  const char* typed;
  int line;
  std::vector<std::string> printed_before;
  friend std::ostream& operator<<(std::ostream& os, const RuntimeCase& c) { return os << c.name; }
};

class RuntimeErrors : public testing::TestWithParam<RuntimeCase> {};

TEST_P(RuntimeErrors, StopTheRunAndLeaveTheEngineWorking) {
  const RuntimeCase& c = GetParam();
  ScriptEngine engine;
  const Outcome o = RunSource(engine, "Print Str(" + std::string(c.typed) + ")");
  EXPECT_EQ(o.runtime_errors, 1);
  EXPECT_EQ(o.runtime_class, "DivisionByZeroException");
  EXPECT_EQ(o.error_line, c.line);
  EXPECT_EQ(o.printed, c.printed_before);
  EXPECT_EQ(RunSource(engine, "Print Str(2+2)").printed, std::vector<std::string>{"4"});
}

INSTANTIATE_TEST_SUITE_P(
    DivisorZero, RuntimeErrors,
    testing::Values(RuntimeCase{"IntegerDivision", "1\\0", 1, {}},
                    RuntimeCase{"DivisorCutToZero", "1\\0.5", 1, {}},
                    RuntimeCase{"Mod", "5 mod 0", 1, {}},
                    RuntimeCase{"AfterAnEarlierPrint", "7)\nPrint Str(1 mod (2-2)", 2, {"7"}}),
    [](const testing::TestParamInfo<RuntimeCase>& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace tessarine::expression

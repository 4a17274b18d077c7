// The seventeen functions at ordinary and edge values, in radians, names in any case.
#include <gtest/gtest.h>

#include <ostream>

#include "run_script.hpp"

namespace tessarine::expression {
namespace {

struct Case {
  const char* name;
  const char* typed;
  const char* printed;
  friend std::ostream& operator<<(std::ostream& os, const Case& c) { return os << c.name; }
};

class Functions : public testing::TestWithParam<Case> {};

TEST_P(Functions, PrintsValue) {
  EXPECT_EQ(ValueOf(GetParam().typed), GetParam().printed);
}

INSTANTIATE_TEST_SUITE_P(
    EveryFunction, Functions,
    testing::Values(
        Case{"Abs", "abs(-2.5)", "2.5"}, Case{"AbsUpperCase", "ABS(-0)", "0"},
        Case{"Acos", "Acos(-1)", "3.141592653589793"}, Case{"AcosOutside", "acos(1.5)", "NAN"},
        Case{"Asin", "asin(1)", "1.5707963267948966"}, Case{"AsinOutside", "asin(-2)", "NAN"},
        Case{"Atan", "atan(1)", "0.7853981633974483"},
        Case{"AtanOfInfinity", "atan(1/0)", "1.5707963267948966"},
        Case{"Atan2YFirst", "atan2(1, -1)", "2.356194490192345"},
        Case{"Atan2Origin", "aTaN2(0, 0)", "0"}, Case{"CeilNegative", "ceil(-1.5)", "-1"},
        Case{"CeilUp", "ceil(1.0000001)", "2"}, Case{"Cos", "cos(1)", "0.5403023058681398"},
        Case{"Exp", "exp(1)", "2.718281828459045"}, Case{"ExpOverflow", "exp(710)", "INF"},
        Case{"ExpUnderflow", "exp(-746)", "0"}, Case{"FloorNegative", "floor(-0.5)", "-1"},
        Case{"Floor", "FLOOR(2.999)", "2"}, Case{"LogIsNatural", "log(10)", "2.302585092994046"},
        Case{"LogZero", "log(0)", "-INF"}, Case{"LogNegative", "log(-1)", "NAN"},
        Case{"Max", "max(2, 3)", "3"}, Case{"MaxFirst", "Max(-1, -2)", "-1"},
        Case{"MaxNotANumber", "max(0/0, 1)", "NAN"}, Case{"Min", "min(2, 3)", "2"},
        Case{"MinNotANumber", "min(1, 0/0)", "NAN"}, Case{"Pow", "pow(2, 10)", "1024"},
        Case{"PowZeroToZero", "pow(0, 0)", "1"}, Case{"PowPole", "pow(0, -1)", "INF"},
        Case{"PowNegativeRoot", "pow(-8, 1/3)", "NAN"},
        Case{"RoundTieAwayFromZero", "round(2.5)", "3"},
        Case{"RoundNegativeTie", "round(-2.5)", "-3"},
        Case{"RoundBelowHalf", "round(0.49999999999999994)", "0"},
        Case{"Sin", "sin(1)", "0.8414709848078965"}, Case{"SinZero", "SIN(0)", "0"},
        Case{"Sqrt", "sqrt(2)", "1.4142135623730951"}, Case{"SqrtNegative", "sqrt(-1)", "NAN"},
        Case{"Tan", "tan(2)", "-2.185039863261519"}, Case{"TanMixedCase", "TaN(0)", "0"}),
    [](const testing::TestParamInfo<Case>& info) { return std::string(info.param.name); });

struct CountCase {
  const char* name;
  const char* typed;
  friend std::ostream& operator<<(std::ostream& os, const CountCase& c) { return os << c.name; }
};

class ArgumentCounts : public testing::TestWithParam<CountCase> {};

TEST_P(ArgumentCounts, AreCompileErrors) {
  const Outcome o = RunTyped(GetParam().typed);
  EXPECT_EQ(o.compile_errors, 1);
  EXPECT_EQ(o.error_message, "Wrong number of arguments");
  EXPECT_TRUE(o.printed.empty());
}

INSTANTIATE_TEST_SUITE_P(
    WrongCounts, ArgumentCounts,
    testing::Values(CountCase{"NoArgument", "abs()"}, CountCase{"TwoForOne", "sqrt(4, 2)"},
                    CountCase{"OneForTwo", "pow(2)"}, CountCase{"ThreeForTwo", "max(1, 2, 3)"},
                    CountCase{"AtanTakesOne", "atan(1, 2)"}, CountCase{"Atan2TakesTwo", "atan2(1)"},
                    CountCase{"StrTakesOne", "1) + Str(1, 2"},
                    CountCase{"EmptyPairAfterWrapping", ")("}),
    [](const testing::TestParamInfo<CountCase>& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace tessarine::expression

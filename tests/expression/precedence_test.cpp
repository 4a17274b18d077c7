// Precedence, grouping and the operators of formulas.
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

class Precedence : public testing::TestWithParam<Case> {};

TEST_P(Precedence, PrintsValue) {
  EXPECT_EQ(ValueOf(GetParam().typed), GetParam().printed);
}

INSTANTIATE_TEST_SUITE_P(
    Formulas, Precedence,
    testing::Values(
        Case{"Hint", "4*((2+3)-tan(2))", "28.740159453046076"},
        Case{"ProductBeforeSum", "2+3*4", "14"}, Case{"QuotientBeforeDifference", "10-6/3", "8"},
        Case{"SubtractionGroupsLeft", "10-4-3", "3"}, Case{"DivisionGroupsLeft", "64/4/2", "8"},
        Case{"Parentheses", "(2+3)*4", "20"}, Case{"Blanks", " 2 \t+\t3 ", "5"},
        Case{"UnaryMinus", "-3", "-3"}, Case{"DoubleMinus", "2--3", "5"},
        Case{"MinusAfterTimes", "2*-3", "-6"}, Case{"MinusOfGroup", "-(2-5)", "3"},
        Case{"PowerBeforeUnaryMinus", "-2^2", "-4"}, Case{"PowerGroupsLeft", "2^3^2", "64"},
        Case{"NegativeExponent", "2^-1", "0.5"}, Case{"PowerBeforeProduct", "3*2^2", "12"},
        Case{"IntegerDivisionTruncates", "-7\\2", "-3"},
        Case{"IntegerDivisionCutsOperands", "7.9\\2.9", "3"},
        Case{"IntegerDivisionAfterProduct", "2*7\\3", "4"},
        Case{"ModDividendSign", "-7 mod 3", "-1"}, Case{"ModFraction", "7.5 Mod 2", "1.5"},
        Case{"ModBeforeSum", "1+7 MOD 4", "4"}, Case{"ModAfterIntegerDivision", "9\\2 mod 3", "1"},
        Case{"ExponentNotation", "1e3+2.5E-1", "1000.25"}, Case{"LeadingPoint", ".5*4", "2"},
        Case{"TrailingPoint", "5.+1", "6"}, Case{"FloatSum", "0.1+0.2", "0.30000000000000004"},
        Case{"DivisionByZero", "1/0", "INF"}, Case{"ZeroByZero", "0/0", "NAN"},
        Case{"TypedAcrossTheWrapping", "1) + Str(2", "12"},
        Case{"NestedCalls", "max(min(3,4),sqrt(16))", "4"}),
    [](const testing::TestParamInfo<Case>& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace tessarine::expression

// Precedence, grouping and the operators of formulas.
#include <gtest/gtest.h>

#include <ostream>

#include "run_script.hpp"

namespace tessarine::expression {
namespace {

TEST_P(TypedFormula, PrintsItsValue) {
  EXPECT_EQ(ValueOf(GetParam().typed), GetParam().printed);
}

INSTANTIATE_TEST_SUITE_P(
    Formulas, TypedFormula,
    testing::Values(
        PrintCase{"Hint", "4*((2+3)-tan(2))", "28.740159453046076"},
        PrintCase{"ProductBeforeSum", "2+3*4", "14"},
        PrintCase{"QuotientBeforeDifference", "10-6/3", "8"},
        PrintCase{"SubtractionGroupsLeft", "10-4-3", "3"},
        PrintCase{"DivisionGroupsLeft", "64/4/2", "8"}, PrintCase{"Parentheses", "(2+3)*4", "20"},
        PrintCase{"Blanks", " 2 \t+\t3 ", "5"}, PrintCase{"UnaryMinus", "-3", "-3"},
        PrintCase{"DoubleMinus", "2--3", "5"}, PrintCase{"MinusAfterTimes", "2*-3", "-6"},
        PrintCase{"MinusOfGroup", "-(2-5)", "3"}, PrintCase{"PowerBeforeUnaryMinus", "-2^2", "-4"},
        PrintCase{"PowerGroupsLeft", "2^3^2", "64"}, PrintCase{"NegativeExponent", "2^-1", "0.5"},
        PrintCase{"PowerBeforeProduct", "3*2^2", "12"},
        PrintCase{"IntegerDivisionTruncates", "-7\\2", "-3"},
        PrintCase{"IntegerDivisionCutsOperands", "7.9\\2.9", "3"},
        PrintCase{"IntegerDivisionAfterProduct", "2*7\\3", "4"},
        PrintCase{"ModDividendSign", "-7 mod 3", "-1"},
        PrintCase{"ModFraction", "7.5 Mod 2", "1.5"}, PrintCase{"ModBeforeSum", "1+7 MOD 4", "4"},
        PrintCase{"ModAfterIntegerDivision", "9\\2 mod 3", "1"},
        PrintCase{"ExponentNotation", "1e3+2.5E-1", "1000.25"},
        PrintCase{"LeadingPoint", ".5*4", "2"}, PrintCase{"TrailingPoint", "5.+1", "6"},
        PrintCase{"FloatSum", "0.1+0.2", "0.30000000000000004"},
        PrintCase{"DivisionByZero", "1/0", "INF"}, PrintCase{"ZeroByZero", "0/0", "NAN"},
        PrintCase{"TypedAcrossTheWrapping", "1) + Str(2", "12"},
        PrintCase{"NestedCalls", "max(min(3,4),sqrt(16))", "4"}),
    [](const testing::TestParamInfo<PrintCase>& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace tessarine::expression

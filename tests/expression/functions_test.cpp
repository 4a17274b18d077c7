// The seventeen functions at ordinary and edge values, in radians, names in any case.
#include <gtest/gtest.h>

#include <ostream>

#include "run_script.hpp"

namespace tessarine::expression {
namespace {

INSTANTIATE_TEST_SUITE_P(
    EveryFunction, TypedFormula,
    testing::Values(
        PrintCase{"Abs", "abs(-2.5)", "2.5"}, PrintCase{"AbsUpperCase", "ABS(-0)", "0"},
        PrintCase{"Acos", "Acos(-1)", "3.141592653589793"},
        PrintCase{"AcosOutside", "acos(1.5)", "NAN"},
        PrintCase{"Asin", "asin(1)", "1.5707963267948966"},
        PrintCase{"Atan", "atan(1)", "0.7853981633974483"},
        PrintCase{"AtanOfInfinity", "atan(1/0)", "1.5707963267948966"},
        PrintCase{"Atan2YFirst", "atan2(1, -1)", "2.356194490192345"},
        PrintCase{"Atan2Origin", "aTaN2(0, 0)", "0"}, PrintCase{"CeilNegative", "ceil(-1.5)", "-1"},
        PrintCase{"CeilUp", "ceil(1.0000001)", "2"},
        PrintCase{"Cos", "cos(1)", "0.5403023058681398"},
        PrintCase{"Exp", "exp(1)", "2.718281828459045"},
        PrintCase{"ExpOverflow", "exp(710)", "INF"},
        PrintCase{"FloorNegative", "floor(-0.5)", "-1"}, PrintCase{"Floor", "FLOOR(2.999)", "2"},
        PrintCase{"LogIsNatural", "log(10)", "2.302585092994046"},
        PrintCase{"LogZero", "log(0)", "-INF"}, PrintCase{"LogNegative", "log(-1)", "NAN"},
        PrintCase{"Max", "max(2, 3)", "3"}, PrintCase{"MaxFirst", "Max(-1, -2)", "-1"},
        PrintCase{"MaxNotANumber", "max(0/0, 1)", "NAN"}, PrintCase{"Min", "min(2, 3)", "2"},
        PrintCase{"MinNotANumber", "min(1, 0/0)", "NAN"}, PrintCase{"Pow", "pow(2, 10)", "1024"},
        PrintCase{"PowZeroToZero", "pow(0, 0)", "1"}, PrintCase{"PowPole", "pow(0, -1)", "INF"},
        PrintCase{"PowNegativeRoot", "pow(-8, 1/3)", "NAN"},
        PrintCase{"RoundTieAwayFromZero", "round(2.5)", "3"},
        PrintCase{"RoundNegativeTie", "round(-2.5)", "-3"},
        PrintCase{"RoundBelowHalf", "round(0.49999999999999994)", "0"},
        PrintCase{"Sin", "sin(1)", "0.8414709848078965"},
        PrintCase{"Sqrt", "sqrt(2)", "1.4142135623730951"},
        PrintCase{"Tan", "tan(2)", "-2.185039863261519"}),
    [](const testing::TestParamInfo<PrintCase>& info) { return std::string(info.param.name); });

// Wrong numbers of arguments are compile errors: the errors test lists them.

}  // namespace
}  // namespace tessarine::expression

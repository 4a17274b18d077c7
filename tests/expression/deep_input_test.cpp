// Deep and long formulas: a value or a compile error, never a crash, and the engine
// keeps working afterwards.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "run_script.hpp"

namespace tessarine::expression {
namespace {

std::string Repeat(const std::string& s, int n) {
  std::string out;
  for (int i = 0; i < n; ++i) out += s;
  return out;
}

struct Case {
  const char* name;
  std::string typed;
  std::string printed;  // empty: a compile error is expected
  friend std::ostream& operator<<(std::ostream& os, const Case& c) { return os << c.name; }
};

class DeepInput : public testing::TestWithParam<Case> {};

TEST_P(DeepInput, GivesValueOrCompileErrorThenWorksOn) {
  ScriptEngine engine;
  const Outcome o = RunSource(engine, "Print Str(" + GetParam().typed + ")");
  if (GetParam().printed.empty()) {
    EXPECT_EQ(o.compile_errors, 1);
    EXPECT_TRUE(o.printed.empty());
  } else {
    EXPECT_EQ(o.compile_errors, 0) << o.error_message;
    EXPECT_EQ(o.printed, std::vector<std::string>{GetParam().printed});
  }
  EXPECT_EQ(RunSource(engine, "Print Str(2+3)").printed, std::vector<std::string>{"5"});
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, DeepInput,
    testing::Values(
        Case{"ThousandParentheses", Repeat("(", 1000) + "1+2" + Repeat(")", 1000), "3"},
        Case{"HundredThousandParentheses", Repeat("(", 100000) + "7" + Repeat(")", 100000), "7"},
        Case{"HundredThousandCalls", Repeat("abs(", 100000) + "-2" + Repeat(")", 100000), "2"},
        Case{"HundredThousandMinuses", Repeat("-", 100000) + "4", "4"},
        Case{"HundredThousandPowers", "1" + Repeat("^2", 100000), "1"},
        Case{"NestedWithoutEnd", Repeat("(", 100000) + "1", ""},
        Case{"NestedWithExtraClose", "(1" + Repeat(")", 100000), ""},
        Case{"TenThousandTerms", "1" + Repeat("+1", 9999), "10000"},
        Case{"TenThousandTexts", "1" + Repeat(") + Str(1", 9999), Repeat("1", 10000)},
        Case{"FourHundredDigits", "0." + Repeat("3", 400), "0.3333333333333333"},
        Case{"FourHundredNines", Repeat("9", 400), "INF"}),
    [](const testing::TestParamInfo<Case>& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace tessarine::expression

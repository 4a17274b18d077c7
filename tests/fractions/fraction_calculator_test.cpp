// The fraction calculator's rules on its nine fields: signs in every position, zero
// and odd bottoms, 32-bit integers that wrap or saturate, text that is no number, an
// operator row that names none.
#include "fractions/fraction_calculator.hpp"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace tessarine {
namespace {

constexpr const char* kMinus = "\u2013";
constexpr const char* kDivide = "\u00F7";

// Fields as blank-separated words, "_" for an empty field.
std::vector<std::string> Words(const char* text) {
  std::vector<std::string> words;
  std::istringstream in(text);
  for (std::string word; in >> word;) words.push_back(word == "_" ? "" : word);
  return words;
}

std::string Join(const FractionCalculatorFields& f) {
  std::string out;
  for (const std::string* s : {&f.whole1, &f.numtop1, &f.numbottom1, &f.whole2, &f.numtop2,
                               &f.numbottom2, &f.ResultWhole, &f.ResultNumTop, &f.ResultNumBottom})
    out += (out.empty() ? "" : " ") + (s->empty() ? std::string("_") : *s);
  return out;
}

struct Row {
  const char* name;
  const char* op;
  const char* in;   // whole1 numtop1 numbottom1 whole2 numtop2 numbottom2 as typed
  const char* out;  // the nine fields afterwards, the result last
  int messages = 0;
  const char* separator = ".";
};

TEST(FractionCalculatorTest, FieldsAfterCalculate) {
  const Row rows[] = {
      {"-1/2 + 1/4", "+", "_ -1 2 _ 1 4", "_ -1 2 _ 1 4 _ -1 4"},
      {"an empty bottom becomes 1", "+", "-1 1 2 _ _ _", "-1 1 2 _ _ 1 -1 1 2"},
      {"the whole part alone", "+", "1 1 2 _ 1 2", "1 1 2 _ 1 2 2 _ _"},
      {"9/9 shows 1 over 1", "+", "_ 1 3 _ 2 3", "_ 1 3 _ 2 3 _ 1 1"},
      {"1/2 - -1/3", kMinus, "_ 1 2 _ -1 3", "_ 1 2 _ -1 3 _ 5 6"},
      {"a minus on a bottom counts for nothing", kMinus, "_ 1 -2 _ 1 2", "_ 1 -2 _ 1 2 _ _ _"},
      {"-2 1/2 x 3", "x", "-2 1 2 3 _ _", "-2 1 2 3 _ 1 -7 1 2"},
      {"-1/2 x -1/3", "x", "_ -1 2 _ -1 3", "_ -1 2 _ -1 3 _ 1 6"},
      {"-1/2 / 1/3", kDivide, "_ -1 2 _ 1 3", "_ -1 2 _ 1 3 -1 1 2"},
      {"two minus signs twice", "+", "-1 -1 2 -2 -1 3", "-1 1 2 -2 1 3 -3 5 6", 2},
      {"a minus that cuts to zero counts as none", "+", "-0.5 1 2 _ 1 2", "-0.5 1 2 _ 1 2 _ 1 1"},
      {"zero bottoms become 1", "x", "_ 3 0 _ 2 0", "_ 3 1 _ 2 1 6 _ _"},
      {"dividing by 0/1 saturates", kDivide, "_ 1 2 _ 0 1", "_ 1 2 _ 0 1 2147483647 1 0"},
      {"a bottom of 0.5 is 0 as an integer", "+", "_ 1 0.5 _ 1 2", "_ 1 0.5 _ 1 2 _ _ _"},
      {"a comma system reads 0,5 as no zero", "+", "_ 1 0,5 _ 1 2", "_ 1 0,5 _ 1 2 _ _ _", 0, ","},
      {"50000 x 50000 wraps", "x", "_ 50000 1 _ 50000 1", "_ 50000 1 _ 50000 1 1794967296 _ _"},
      {"2147483647 + 1 wraps to the lowest", "+", "2147483647 _ _ 1 _ _",
       "2147483647 0 1 1 _ 1 -2147483647 _ _"},
      {"5000000000 saturates as it is read", "+", "5000000000 _ _ 0 _ _",
       "5000000000 0 1 0 _ 1 2147483647 _ _"},
      {"negating the lowest integer", "+", "-1 -2147483648 1 _ _ _",
       "-1 -2147483648 1 _ _ 1 -2147483647 _ _", 1},
      {"the bottom wraps to 0", "+", "_ 1 65536 _ 1 65536",
       "_ 1 65536 _ 1 65536 2147483647 131072 0"},
      {"a bottom that wraps to -1", "+", "_ 1 3 _ 1 1431655765",
       "_ 1 3 _ 1 1431655765 -1431655768 _ _"},
      {"text that is no number", "+", "abc 1x 2e 2abc _ _", "abc 1x 2e 2abc _ 1 2 1 2"},
      {"no operator row", "", "_ 1 2 _ 1 2", "_ 1 2 _ 1 2 _ _ _"},
      {"a hyphen is no operator", "-", "_ 1 2 _ 1 2", "_ 1 2 _ 1 2 _ _ _"},
      {"the letter X is the times row", "X", "_ 1 2 _ 1 2", "_ 1 2 _ 1 2 _ 1 4"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const std::vector<std::string> in = Words(row.in);
    ASSERT_EQ(in.size(), 6u);
    FractionCalculatorFields fields{in[0], in[1], in[2], in[3], in[4], in[5], "?", "?", "?"};
    int messages = 0;
    const FractionFeedback feedback = FractionCalculateButtonAction(
        fields, row.op, row.separator, [&](const FractionCalculatorFields&, const std::string& m) {
          EXPECT_EQ(m, kOneNegativeValueMessage);
          ++messages;
        });
    EXPECT_EQ(Join(fields), row.out);
    EXPECT_EQ(messages, row.messages);
    EXPECT_EQ(feedback.sounds, std::vector<FractionSound>{FractionSound::kPlayResultSound});
  }
}

// Behind each box the user sees the numerators as they stand then: the first box
// before any change, the second after the first numerator lost its minus.
TEST(FractionCalculatorTest, EachBoxSeesTheFieldsOfItsMoment) {
  FractionCalculatorFields f{"-1", "-1", "2", "-2", "-1", "3", "", "", ""};
  std::vector<std::string> seen;
  FractionCalculateButtonAction(f, "+", ".",
                                [&](const FractionCalculatorFields& now, const std::string&) {
                                  seen.push_back(now.numtop1 + " " + now.numtop2);
                                });
  EXPECT_EQ(seen, (std::vector<std::string>{"-1 -1", "1 -1"}));
}

}  // namespace
}  // namespace tessarine

// The fraction calculator's rules the driver scripts do not reach: signs in the
// remaining positions, separators and operators out of the way, a wrapping bottom,
// and the result moved to the inputs.
#include "fractions/fraction_calculator.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tessarine {
namespace {

constexpr const char* kMinus = "\u2013";

// whole1, numtop1, numbottom1, whole2, numtop2, numbottom2 as typed.
struct Operands {
  std::string w1, t1, b1, w2, t2, b2;
};

struct Row {
  const char* name;
  const char* op;
  Operands in;
  FractionCalculatorFields out;  // all nine fields afterwards
  int messages;
  const char* separator = ".";
};

void Expect(const FractionCalculatorFields& got, const FractionCalculatorFields& want,
            const char* name) {
  EXPECT_EQ(got.whole1, want.whole1) << name;
  EXPECT_EQ(got.numtop1, want.numtop1) << name;
  EXPECT_EQ(got.numbottom1, want.numbottom1) << name;
  EXPECT_EQ(got.whole2, want.whole2) << name;
  EXPECT_EQ(got.numtop2, want.numtop2) << name;
  EXPECT_EQ(got.numbottom2, want.numbottom2) << name;
  EXPECT_EQ(got.ResultWhole, want.ResultWhole) << name;
  EXPECT_EQ(got.ResultNumTop, want.ResultNumTop) << name;
  EXPECT_EQ(got.ResultNumBottom, want.ResultNumBottom) << name;
}

void RunRows(const std::vector<Row>& rows) {
  for (const Row& row : rows) {
    const Operands& o = row.in;
    FractionCalculatorFields fields{o.w1, o.t1, o.b1, o.w2, o.t2, o.b2, "stale", "stale", "stale"};
    int messages = 0;
    const FractionFeedback feedback = FractionCalculateButtonAction(
        fields, row.op, row.separator, [&](const FractionCalculatorFields&, const std::string& m) {
          EXPECT_EQ(m, kOneNegativeValueMessage) << row.name;
          ++messages;
        });
    Expect(fields, row.out, row.name);
    EXPECT_EQ(messages, row.messages) << row.name;
    EXPECT_EQ(feedback.sounds, std::vector<FractionSound>{FractionSound::kPlayResultSound})
        << row.name;
  }
}

TEST(FractionCalculatorTest, SignsInEveryPosition) {
  // clang-format off
  RunRows({
      {"1/3 - 1/2 goes below zero", kMinus, {"", "1", "3", "", "1", "2"},
       {"", "1", "3", "", "1", "2", "", "-1", "6"}, 0},
      {"-1/2 x -1/3", "x", {"", "-1", "2", "", "-1", "3"},
       {"", "-1", "2", "", "-1", "3", "", "1", "6"}, 0},
      {"a minus that cuts to zero counts as none", "+", {"-0.5", "1", "2", "", "1", "2"},
       {"-0.5", "1", "2", "", "1", "2", "", "1", "1"}, 0},
  });
  // clang-format on
}

TEST(FractionCalculatorTest, DenominatorsAndOperatorsOutOfTheWay) {
  // clang-format off
  RunRows({
      {"a comma system reads 0,5 as no zero", "+", {"", "1", "0,5", "", "1", "2"},
       {"", "1", "0,5", "", "1", "2", "", "", ""}, 0, ","},
      {"a hyphen is no operator", "-", {"", "1", "2", "", "1", "2"},
       {"", "1", "2", "", "1", "2", "", "", ""}, 0},
      {"the letter X is the times row", "X", {"", "1", "2", "", "1", "2"},
       {"", "1", "2", "", "1", "2", "", "1", "4"}, 0},
  });
  // clang-format on
}

TEST(FractionCalculatorTest, WrapsNear2To31) {
  // clang-format off
  RunRows({
      {"a bottom that wraps to -1", "+", {"", "1", "3", "", "1", "1431655765"},
       {"", "1", "3", "", "1", "1431655765", "-1431655768", "", ""}, 0},
  });
  // clang-format on
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

TEST(FractionCalculatorTest, TransferMovesAResultOnly) {
  FractionCalculatorFields f{"1", "2", "3", "4", "5", "6", "-7", "", ""};
  EXPECT_TRUE(TransferFractionResultToInput(f));
  Expect(f, {"-7", "", "", "", "", "", "", "", ""}, "transfer");
  FractionCalculatorFields empty{"1", "2", "3", "4", "5", "6", "", "", ""};
  EXPECT_FALSE(TransferFractionResultToInput(empty));
  Expect(empty, {"1", "2", "3", "4", "5", "6", "", "", ""}, "nothing to transfer");
}

}  // namespace
}  // namespace tessarine

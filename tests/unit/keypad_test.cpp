// The keypad's logic where a driver script can't reach it: percent over a pending
// function, the display masks as the preferences rebuild them, and the error state.
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "calculator/calc_window.hpp"
#include "runtime/headless/headless_platform.hpp"
#include "shell/program.hpp"

namespace tessarine {
namespace {

class KeypadTest : public ::testing::Test {
 protected:
  KeypadTest() {
    program.Start();
    headless.Wait(100);
  }
  CalcWindow& W() { return program.GetCalcWindow(); }
  // Presses keys by their signs: digits, ".", "+", "-", "x", "/", "=", "%", "C".
  void Keys(const std::string& keys) {
    static const std::map<char, std::string> kNames = {
        {'.', "Decimal"}, {'+', "Plus"},  {'-', "Minus"},   {'x', "Times"},
        {'/', "Divide"},  {'=', "Equal"}, {'%', "Percent"}, {'C', "Clear"}};
    for (char key : keys) {
      const auto named = kNames.find(key);
      W().Get("Button" + (named == kNames.end() ? std::string(1, key) : named->second)).Click();
    }
  }
  // What a two-operand function key does: it arms its function with the value on
  // display as the left operand, and the next digit starts the right one.
  void Arm(const std::string& function) {
    W().Stored2 = W().Result;
    W().Calculation2 = function;
    W().ClearDisplay = true;
  }
  std::string Display() { return W().Get("Display").Text(); }

  HeadlessPlatform headless;
  Program program{headless.platform(), 1};
};

TEST_F(KeypadTest, PercentOverwritesAPendingFunction) {
  Keys("200+");
  Keys("3");
  Arm("Power");
  Keys("10%=");
  EXPECT_EQ(W().Result, 220);
}

// The masks at 10 places and the display of 2/3 there are the preferences script's.
TEST_F(KeypadTest, RebuiltMasksFollowTheNumberOfDecimals) {
  struct Case {
    int decimals;
    const char* keys;
    const char* display;
    const char* exponent;
  };
  const Case cases[] = {
      {0, ".05=", "5.", "-2"},  // 0.05 is below 0.1: scientific form
      {0, ".5=", "1.", ""},     // 0.5 is not; no decimals: rounded away from zero
      {0, "2/3=", "1.", ""},   {2, "2/3=", "0.67", ""}, {2, ".005=", "5.", "-3"},  // below 0.01
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.keys);
    program.Globals().RebuildFormats(c.decimals);
    Keys("C");
    Keys(c.keys);
    EXPECT_EQ(Display(), c.display);
    EXPECT_EQ(W().Get("ExponentText").Text(), c.exponent);
  }
}

TEST_F(KeypadTest, FormatResultReformatsANumberInTheMiddleOfTyping) {
  Keys("1.23456");
  EXPECT_EQ(Display(), "1.23456");
  program.Globals().RebuildFormats(2);
  W().FormatResult(W().Result);
  EXPECT_EQ(Display(), "1.23");
}

TEST_F(KeypadTest, TheErrorStateListHasEveryControlOnceInOrder) {
  const auto& list = W().ErrorStateControls();
  ASSERT_EQ(list.size(), 59u);
  EXPECT_EQ(list.front()->Name(), "ButtonPercent");
  EXPECT_EQ(list[43]->FullName(), "UnitsRadio(0)");
  EXPECT_EQ(list.back()->Name(), "TrigGroupBoxLabel");
  for (std::size_t i = 0; i < list.size(); ++i)
    for (std::size_t j = i + 1; j < list.size(); ++j) EXPECT_NE(list[i], list[j]);
}

TEST_F(KeypadTest, EnteringTheErrorStateAgainReplacesTheMessage) {
  Keys("1/0=");
  EXPECT_EQ(W().Get("MessageText").Text(), "Error: Overflow.");
  W().ErrorHasOccurred(true, "Error: Not a positive integer.");
  EXPECT_EQ(W().Get("MessageText").Text(), "Error: Not a positive integer.");
  W().ErrorHasOccurred(false, "ignored");
  EXPECT_FALSE(W().Get("MessageText").Visible());
  EXPECT_EQ(Display(), "Error.");  // leaving does not touch the display
}

}  // namespace
}  // namespace tessarine

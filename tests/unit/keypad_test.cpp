// The keypad's logic where a driver script can't reach it: percent over a pending
// function and the error state.
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

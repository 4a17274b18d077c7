// Thousands of random key sequences through the keypad: whatever a user presses,
// the program neither faults nor hangs, and the display keeps its invariants.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "calculator/calc_window.hpp"
#include "runtime/headless/headless_platform.hpp"
#include "runtime/text.hpp"
#include "shell/program.hpp"

namespace tessarine {
namespace {

const std::vector<std::string> kKeys = {
    "Button0",       "Button1",           "Button2",     "Button3",          "Button4",
    "Button5",       "Button6",           "Button7",     "Button8",          "Button9",
    "ButtonDecimal", "ButtonPlus",        "ButtonMinus", "ButtonTimes",      "ButtonDivide",
    "ButtonEqual",   "ButtonPercent",     "ButtonClear", "ButtonClearEntry", "ButtonChangeSign",
    "ButtonExp",     "ButtonSciNotation",
};

// Checks what must hold after any key, and says which key sequence broke it.
void CheckInvariants(const CalcWindow& w, const std::string& trail) {
  SCOPED_TRACE(trail);
  ASSERT_FALSE(w.Get("Display").Text().empty());
  ASSERT_LE(Len(w.Exponent), 3);
  // The error state is all or nothing: the message shows exactly while every
  // listed control is locked.
  const bool error = w.Get("MessageText").Visible();
  for (const Control* control : w.ErrorStateControls())
    ASSERT_EQ(control->Enabled(), !error) << control->FullName();
  if (error) {
    ASSERT_EQ(w.Get("Display").Text(), "Error.");
  } else if (!w.UserIsTypingExponent) {
    // A formatted number is at most 13 characters; raw typed text at most 12
    // digits plus the points a user may add.
    ASSERT_LE(Len(w.Get("Display").Text()), 14 + Len(w.StringResult));
  }
}

void RunSequences(const std::string& separator, std::uint64_t seed, int sequences, int length) {
  HeadlessPlatform headless(separator);
  Program program(headless.platform(), 1);
  program.Start();
  headless.Wait(100);
  CalcWindow& window = program.GetCalcWindow();
  std::mt19937_64 random(seed);
  std::uniform_int_distribution<std::size_t> pick(0, kKeys.size() - 1);
  for (int s = 0; s < sequences; ++s) {
    std::string trail;
    for (int k = 0; k < length; ++k) {
      const std::string& key = kKeys[pick(random)];
      const bool option = random() % 16 == 0;
      headless.Hold("alt", option);
      trail += (option ? " alt+" : " ") + key;
      window.Get(key).Click();
      CheckInvariants(window, trail);
      if (::testing::Test::HasFatalFailure()) return;
    }
    for (const PlatformEvent& event : headless.TakeEvents())
      ASSERT_NE(event.kind, "exception") << event.text << " in" << trail;
    window.Get("ButtonClear").Click();
  }
}

TEST(KeypadRandomKeys, PointSeparator) {
  RunSequences(".", 1, 3000, 40);
}
TEST(KeypadRandomKeys, CommaSeparator) {
  RunSequences(",", 2, 3000, 40);
}

}  // namespace
}  // namespace tessarine

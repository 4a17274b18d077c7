// What the "Convert" key hands to the tab: the answer's text, sound, speech and tape.
#include "conversion/convert_key.hpp"

#include <gtest/gtest.h>

#include <string>

namespace tessarine {
namespace {

TEST(ConvertKey, AnswerInGeneralTextWithTheUsersSeparator) {
  const CurrencyRates rates = DefaultCurrencyRates();
  struct Case {
    const char* name;
    ConvertKeyInput input;
    const char* separator;
    const char* text;
  };
  const Case kCases[] = {
      {"Fahrenheit to Celsius, point", {7, 1, 0, 100.0, ""}, ".", "37.77777777777778"},
      {"Fahrenheit to Celsius, comma", {7, 1, 0, 100.0, ""}, ",", "37,77777777777778"},
      {"Light Years to Millimeters, e form", {2, 12, 0, 1.0, ""}, ".", "9.458e+18"},
      {"no target row keeps the old answer", {2, 0, 99, 1.0, "12,5"}, ",", "12,5"},
      {"no category keeps the old answer", {11, 0, 0, 1.0, ""}, ".", ""},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE(c.name);
    const ConvertKeyEffects e = PressConvertKey(c.input, rates, c.separator);
    EXPECT_FALSE(e.show_currency_error);
    EXPECT_EQ(e.result_text, c.text);
    EXPECT_TRUE(e.play_result_sound);
    EXPECT_EQ(e.speak_button, "Convert");
    EXPECT_EQ(e.speak_total, c.text);
  }
}

TEST(ConvertKey, TapeMarksAndTheAnswerReadBack) {
  const CurrencyRates rates = DefaultCurrencyRates();
  const ConvertKeyEffects e = PressConvertKey({9, 11, 5, 60.0, ""}, rates, ",");
  EXPECT_EQ(e.source_tape_mark, "  conv");
  EXPECT_EQ(e.answer_tape_mark, "     \xE2\x97\x8A");
  EXPECT_EQ(e.answer_tape_value, (60.0 * 0.4470193) * 3.6);
  // An old answer that is empty reads back as 0.
  EXPECT_EQ(PressConvertKey({11, 0, 0, 5.0, ""}, rates, ".").answer_tape_value, 0.0);
}

}  // namespace
}  // namespace tessarine

// What the "Convert" key and a click on the answer do, worked out without touching
// any control, so that the tab only carries the results over.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "conversion/currency_table.hpp"

namespace tessarine {

// The state the "Convert" key reads.
struct ConvertKeyInput {
  int category = 0;         // ConversionCategoryPopup.ListIndex
  int from_row = 0;         // ConversionFromPopup.ListIndex
  int to_row = 0;           // ConversionToPopup.ListIndex
  double value = 0.0;       // the keypad's Result
  std::string result_text;  // ConversionResult.Text before the key
};

// What the key does, in the order the tab does it.
struct ConvertKeyEffects {
  // True: show CurrencyErrorWindow within the main window and do nothing else; the
  // fields below are then empty.
  bool show_currency_error = false;
  // ConversionResult.Text afterwards (unchanged when there was no answer).
  std::string result_text;
  // Then, in this order: PlayResultSound, SpeakButton(speak_button),
  // SpeakTotal(speak_total), WriteToTape(source_tape_mark) for the source value, and,
  // with the tape on, Padded(answer_tape_value) + answer_tape_mark + CR at the tape's end.
  bool play_result_sound = false;
  std::string speak_button;
  std::string speak_total;
  std::string source_tape_mark;
  double answer_tape_value = 0.0;
  std::string answer_tape_mark;
};

ConvertKeyEffects PressConvertKey(const ConvertKeyInput& input, const CurrencyRates& rates,
                                  std::string_view decimal_separator);

// The value a click on the answer puts on the display: CDbl of its text; nothing when
// the answer is empty.
std::optional<double> AnswerClickValue(std::string_view result_text,
                                       std::string_view decimal_separator);

}  // namespace tessarine

// The "Convert" key's effects. The answer goes out as CStr's general text, never
// through the display masks; the tape's second line reads that text back.
#include "conversion/convert_key.hpp"

#include "conversion/conversion.hpp"
#include "runtime/numbers.hpp"

namespace tessarine {

ConvertKeyEffects PressConvertKey(const ConvertKeyInput& input, const CurrencyRates& rates,
                                  std::string_view decimal_separator) {
  ConvertKeyEffects effects;
  const Conversion conversion =
      Convert(input.category, input.from_row, input.to_row, input.value, rates);
  if (conversion.status == ConversionStatus::kRateUnavailable) {
    effects.show_currency_error = true;
    return effects;
  }
  effects.result_text = conversion.status == ConversionStatus::kConverted
                            ? CStr(conversion.answer, decimal_separator)
                            : input.result_text;
  effects.play_result_sound = true;
  effects.speak_button = "Convert";
  effects.speak_total = effects.result_text;
  effects.source_tape_mark = "  conv";
  effects.answer_tape_value = CDbl(effects.result_text, decimal_separator);
  effects.answer_tape_mark = "     \u25CA";
  return effects;
}

std::optional<double> AnswerClickValue(std::string_view result_text,
                                       std::string_view decimal_separator) {
  if (result_text.empty()) return std::nullopt;
  return CDbl(result_text, decimal_separator);
}

}  // namespace tessarine

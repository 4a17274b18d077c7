// The Fractions tab of the main window: its mode popup switching the three pages,
// and the buttons and fields of the calculator and of the two conversions.
#pragma once

#include <string>

#include "calculator/calc_window.hpp"
#include "calculator/main_window_part.hpp"
#include "fractions/fraction_calculator.hpp"
#include "fractions/fraction_conversion.hpp"
#include "settings/app_context.hpp"

namespace tessarine {

// FractionsTab: the logic behind the Fractions tab's controls.
class FractionsTab final : public MainWindowPart {
 public:
  FractionsTab(CalcWindow& window, AppContext& app);

  void PopupMenu1_Change();
  void FractionCalculateButton_Action();
  void FractionClearButton_Action();
  void ConvertFractionToDecimalButton_Action();
  void ClearFractionToDecimalButton_Action();
  void RoundedBevelButton7_Action();
  void RoundedBevelButton8_Action();
  // Moves a result into the first operand. No control calls it.
  void TransferFractionResultToInput();

 private:
  FractionCalculatorFields ReadCalculator() const;
  void WriteCalculator(const FractionCalculatorFields& fields);
  FractionToDecimalFields ReadFractionToDecimal() const;
  void WriteFractionToDecimal(const FractionToDecimalFields& fields);
  DecimalToFractionFields ReadDecimalToFraction() const;
  void WriteDecimalToFraction(const DecimalToFractionFields& fields);
  void Play(const FractionFeedback& feedback);
  std::string Text(const char* control) const { return window_.Get(control).Text(); }
  void SetText(const char* control, const std::string& text) { window_.Get(control).SetText(text); }

  CalcWindow& window_;
  AppContext& app_;
};

}  // namespace tessarine

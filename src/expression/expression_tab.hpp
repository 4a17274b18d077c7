// ExpressionTab: the Expression page of the main window. The typed formula is
// wrapped as one Print statement and run by CalculatorEngine at every change of the
// field; a click on the value hands it to the keypad.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "calculator/calc_window.hpp"
#include "calculator/main_window_part.hpp"
#include "expression/script_engine.hpp"
#include "runtime/control.hpp"
#include "settings/app_context.hpp"

namespace tessarine {

class ExpressionTab final : public MainWindowPart {
 public:
  ExpressionTab(CalcWindow& window, AppContext& app);

  // The field's text at start, which a click or a function's insertion clears.
  static constexpr const char* kHint =
      "Click here to enter an expression to solve using your keyboard. For example: "
      "4*((2+3)-tan(2))";
  static constexpr const char* kUnbalanced = "Parentheses don't match";
  static constexpr const char* kRuntimeErrorMessage = "Sorry, an error occured!";

  bool ExpressionField_MouseDown();
  void ExpressionField_TextChange();
  void FunctionPopUp_Change();
  void ClearExpressionButton_Open();
  void ClearExpressionButton_Action();
  bool ExpressionResult_MouseDown();

  void CalculatorEngine_Print(const std::string& text);
  std::string CalculatorEngine_Input(const std::string& prompt);
  void CalculatorEngine_CompilerError(int line, int column, const std::string& message);
  void CalculatorEngine_RuntimeError(int line, const RuntimeException& error);

  // "ExpressionSource": the program the engine last received.
  std::optional<FieldValue> FieldByName(std::string_view name) const override;

  ScriptEngine CalculatorEngine;

 private:
  CalcWindow& window_;
  AppContext& app_;
  Control& ExpressionField;
  Control& FunctionPopUp;
  Control& ExpressionResult;
  Control& ClearExpressionButton;
};

}  // namespace tessarine

#include "expression/expression_tab.hpp"

#include <array>

#include "runtime/numbers.hpp"
#include "runtime/text.hpp"

namespace tessarine {

namespace {

// One row of the function popup: its text, what it inserts, and how far the caret
// then moves from where it stood, so that it lands between the parentheses.
struct FunctionRow {
  const char* caption;
  const char* inserted;
  int caret_move;
};

constexpr std::array<FunctionRow, 18> kFunctionRows = {{
    {"---   insert function   ---", "", 0},
    {"Abs(val) - absolute specified value", "abs()", 4},
    {"Acos(val) - arccosine of specified value", "acos()", 5},
    {"Asin(val) - arcsine of specified value", "asin()", 5},
    {"Atan [val] - arctangent of specified value", "atan()", 5},
    {"Atan2 [y, x] - arctangent of point x, y", "atan2()", 6},
    {"Ceil(val) - rounds value up to nearest integer", "ceil()", 5},
    {"Cos(val) - cosine of specified value", "cos()", 4},
    {"Exp(val) - e to the power of specified value", "exp()", 4},
    {"Floor(val) - rounds value down to nearest integer", "floor()", 6},
    {"Log(val) - natural logarithm of specified value", "log()", 4},
    {"Max(val1,val2) - greater of specified values", "max()", 4},
    {"Min(val1,val2) - lesser of specified values", "min()", 4},
    {"Pow(x,y) - x raised to the power of y", "pow()", 4},
    {"Round(val) - rounds value to nearest integer", "round()", 6},
    {"Sin(val) - sine of specified value", "sin()", 4},
    {"Sqrt(val) - square root of specified value", "sqrt()", 5},
    {"Tan(val) - tangent of value", "tan()", 4},
}};

}  // namespace

ExpressionTab::ExpressionTab(CalcWindow& window, AppContext& app)
    : window_(window),
      app_(app),
      ExpressionField(window.Get("ExpressionField")),
      FunctionPopUp(window.Get("FunctionPopUp")),
      ExpressionResult(window.Get("ExpressionResult")),
      ClearExpressionButton(window.Get("ClearExpressionButton")) {
  // The popup's design rows, on row 0, are in place before its Change is wired: the
  // design's choice of row raises nothing, so the hint stays on show.
  for (const FunctionRow& row : kFunctionRows) FunctionPopUp.AddRow(row.caption);
  FunctionPopUp.SetListIndex(0);

  ExpressionField.events.MouseDown = [this](int, int) { return ExpressionField_MouseDown(); };
  ExpressionField.events.TextChange = [this] { ExpressionField_TextChange(); };
  FunctionPopUp.events.Change = [this] { FunctionPopUp_Change(); };
  ClearExpressionButton.events.Open = [this] { ClearExpressionButton_Open(); };
  ClearExpressionButton.events.Action = [this] { ClearExpressionButton_Action(); };
  ExpressionResult.events.MouseDown = [this](int, int) { return ExpressionResult_MouseDown(); };

  CalculatorEngine.Print = [this](const std::string& text) { CalculatorEngine_Print(text); };
  CalculatorEngine.Input = [this](const std::string& prompt) {
    return CalculatorEngine_Input(prompt);
  };
  CalculatorEngine.CompilerError = [this](int line, int column, const std::string& message) {
    CalculatorEngine_CompilerError(line, column, message);
  };
  CalculatorEngine.RuntimeError = [this](int line, const RuntimeException& error) {
    CalculatorEngine_RuntimeError(line, error);
  };
}

bool ExpressionTab::ExpressionField_MouseDown() {
  if (StrEq(ExpressionField.Text(), kHint)) ExpressionField.SetText("");
  return false;  // the click goes on to place the caret
}

void ExpressionTab::ExpressionField_TextChange() {
  ExpressionResult.SetText("");
  const std::string& text = ExpressionField.Text();
  // Counts only, not order: ")(" goes on to the engine and fails to compile there.
  if (CountFields(text, "(") != CountFields(text, ")")) {
    ExpressionResult.SetText(kUnbalanced);
    return;
  }
  // A function just inserted waits for its argument: nothing to say yet.
  if (InStr(text, "()") > 0) return;
  CalculatorEngine.Source("Print Str(" + text + ")");
  CalculatorEngine.Run();
}

void ExpressionTab::FunctionPopUp_Change() {
  int caret = ExpressionField.SelStart();
  // Only the first ten letters are looked at; the caret stays as read, and the
  // field's clamping settles a place past the shortened text.
  if (StrEq(Left(ExpressionField.Text(), 10), "Click here")) ExpressionField.SetText("");
  const int row = FunctionPopUp.ListIndex();
  if (row >= 1 && row < static_cast<int>(kFunctionRows.size())) {
    ExpressionField.SetSelText(kFunctionRows[static_cast<std::size_t>(row)].inserted);
    caret += kFunctionRows[static_cast<std::size_t>(row)].caret_move;
  }
  // Back on row 0, which raises this handler again and inserts nothing.
  FunctionPopUp.SetListIndex(0);
  app_.platform.desktop.SetFocus(ExpressionField);
  ExpressionField.SetSelStart(caret);
}

void ExpressionTab::ClearExpressionButton_Open() {
  ClearExpressionButton.SetCaption("Clear");
}

void ExpressionTab::ClearExpressionButton_Action() {
  ExpressionField.SetText("");
  window_.PlayClearSound();
  window_.SpeakButton("Clear");
  app_.platform.desktop.ClearFocus();
}

bool ExpressionTab::ExpressionResult_MouseDown() {
  const std::string& text = ExpressionResult.Text();
  if (!text.empty()) {
    // The label holds the engine's text, always with a ".", whatever the user's
    // separator; so it is read in that notation and the value arrives whole. The
    // text is not inspected: "Parentheses don't match" reads as 0.
    window_.Result = CDbl(text, ".");
    window_.UpdateDisplay();
    window_.ClearDisplay = false;
    window_.ClearDisplay2 = false;
  }
  return false;
}

void ExpressionTab::CalculatorEngine_Print(const std::string& text) {
  ExpressionResult.SetText(text);
  window_.SpeakTotal(ExpressionResult.Text());
}

std::string ExpressionTab::CalculatorEngine_Input(const std::string&) {
  return "";
}

void ExpressionTab::CalculatorEngine_CompilerError(int, int, const std::string&) {
  // A half-typed formula is the usual case: it shows nothing.
  ExpressionResult.SetText("");
}

void ExpressionTab::CalculatorEngine_RuntimeError(int, const RuntimeException&) {
  app_.platform.desktop.MsgBox(kRuntimeErrorMessage);
}

std::optional<FieldValue> ExpressionTab::FieldByName(std::string_view name) const {
  if (StrEq(name, "ExpressionSource")) return FieldValue{CalculatorEngine.Source()};
  return std::nullopt;
}

}  // namespace tessarine

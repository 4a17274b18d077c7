// How Result becomes the text of Display and ExponentText, the Exp and Sci keys,
// and the right-aligned text of the tape and the memory list.
#include "calculator/calc_window.hpp"
#include "runtime/text.hpp"

namespace tessarine {

namespace {

// Splits a formatted number at its "e": the mantissa goes to the display, what
// stands behind the "e" (sign included) to the exponent label.
void ShowSplit(Control& display, Control& exponent, const std::string& t) {
  const int e = InStr(t, "e");
  if (e > 0) {
    display.SetText(tessarine::Left(t, e - 1));
    exponent.SetText(Right(t, Len(t) - e));
  } else {
    display.SetText(t);
    exponent.SetText("");
  }
}

}  // namespace

void CalcWindow::UpdateDisplay() {
  const std::string s = CStr(Result);
  if (InStr(s, "INF") > 0)
    ErrorHasOccurred(true, "Error: Overflow.");
  else if (InStr(s, "NAN") > 0)
    ErrorHasOccurred(true, "Error: Not a number.");
  else if (InStr(s, "Error") > 0)
    ErrorHasOccurred(true, "");
  else
    FormatResult(Result);
  UserIsTypingExponent = false;
}

void CalcWindow::FormatResult(double x) {
  std::string t;
  if (Val(globals_.SmallNegativeNumber) < x && x < Val(globals_.SmallPositiveNumber) && x != 0) {
    t = Format(x, globals_.ExponentFormat);
  } else if (-1e70 < x && x < 1e70) {
    // Plain form while it fits in 13 characters, sign and separator included.
    t = Format(x, globals_.NoExponentFormat);
    if (Len(t) >= 14) t = Format(x, globals_.ExponentFormat);
  } else {
    t = Format(x, globals_.ExponentFormat);
  }
  ShowSplit(Display, ExponentText, t);
}

void CalcWindow::ButtonExpAction() {
  Exponent.clear();
  ExponentText.SetText("+");
  UserIsTypingExponent = true;
  PlayCalculationSound();
  SpeakButton("Exponent");
}

void CalcWindow::ButtonSciNotationAction() {
  if (!ExponentText.Text().empty()) {
    // Back to plain form, except from 1e13 up, where the number stays scientific.
    if (Result < 1e13) {
      Display.SetText(tessarine::Left(Format(Result, globals_.NoExponentFormat), 14));
      ExponentText.SetText("");
      ClearDisplay = true;
    }
  } else {
    ShowSplit(Display, ExponentText, Format(Result, globals_.ExponentFormat));
    ClearDisplay = true;
  }
  PlayCalculationSound();
  SpeakButton("Scientific Notation");
}

std::string CalcWindow::Padded(double x) const {
  std::string s = CStr(x);
  if (s.empty()) return s;
  const int length = Len(s);
  if (length >= 14) return s;
  return std::string(static_cast<std::size_t>(14 - length), ' ') + s;
}

std::string CalcWindow::ConvertPreciseResult(double x) const {
  const std::string s = CStr(x);
  if (InStr(s, "e") > 0 || Len(s) > 12) return Format(x, "-#.########e+");
  return Format(x, "-#.########");
}

bool CalcWindow::ParseResult(const std::string&) const {
  return false;
}

bool CalcWindow::IsDigit(const std::string& s) const {
  // By string order, as the comparison of two texts goes.
  return (StrComp(s, "0", 1) >= 0 && StrComp(s, "9", 1) <= 0) || s == ".";
}

bool CalcWindow::IsHex(const std::string& s) const {
  for (int i = 1; i <= Len(s); ++i)
    if (InStr("0123456789abcdef", Mid(s, i, 1)) == 0) return false;
  return true;
}

}  // namespace tessarine

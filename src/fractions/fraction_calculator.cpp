#include "fractions/fraction_calculator.hpp"

#include <cstdint>

#include "fractions/int32_arithmetic.hpp"
#include "fractions/reduce.hpp"
#include "runtime/arithmetic.hpp"
#include "runtime/numbers.hpp"
#include "runtime/text.hpp"

namespace tessarine {

namespace {

// A mixed number is negative when its whole part or its numerator is, read as
// integers; a minus on both is reported and then taken off the numerator.
bool ValidateOperand(const FractionCalculatorFields& fields, std::string_view whole,
                     std::string& numtop, std::string_view sep,
                     const FractionMessageBox& message_box) {
  const std::int32_t w = ToInt32(CDbl(whole, sep));
  const std::int32_t t = ToInt32(CDbl(numtop, sep));
  if (w < 0 && t < 0) {
    if (message_box) message_box(fields, std::string(kOneNegativeValueMessage));
    numtop = Str(WrapNeg(t));
  }
  return w < 0 || t < 0;
}

std::int32_t Magnitude(std::string_view text) {
  return ToInt32(Abs(Val(text)));
}

// The whole part taken out of a top above its bottom, with the remainder.
struct WholeSplit {
  std::int32_t whole;
  std::int32_t remainder;
};

// A is the top's magnitude, D the bottom as a float; both as read back from the fields.
bool TakesWholePart(const FractionCalculatorFields& f, WholeSplit& split) {
  const std::int32_t a = Magnitude(f.ResultNumTop);
  const double d = Val(f.ResultNumBottom);
  if (!(d < a)) return false;
  split.whole = ToInt32(Floor(a / d));
  split.remainder = ToInt32(a - split.whole * d);
  return true;
}

// With no whole part left, the sign of a product or quotient moves to the top.
void MoveSignToTop(FractionCalculatorFields& f, bool signs_differ) {
  if (Val(f.ResultWhole) != 0) return;
  f.ResultWhole.clear();
  if (signs_differ) f.ResultNumTop = Str(Val(f.ResultNumTop) * -1.0);
}

void AddOrSubtract(FractionCalculatorFields& f, std::int32_t n1, std::int32_t b1, std::int32_t n2,
                   std::int32_t b2, bool negative1, bool negative2, bool subtract) {
  std::int32_t p = WrapMul(n1, b2);
  std::int32_t q = WrapMul(n2, b1);
  if (negative1) p = WrapNeg(p);
  if (negative2) q = WrapNeg(q);
  f.ResultNumBottom = Str(WrapMul(b1, b2));
  f.ResultNumTop = Str(subtract ? WrapSub(p, q) : WrapAdd(p, q));
  WholeSplit split{};
  if (TakesWholePart(f, split)) {
    f.ResultWhole = Str(split.whole);
    if (Val(f.ResultNumTop) < 0) f.ResultWhole = Str(WrapNeg(split.whole));
    f.ResultNumTop = Str(split.remainder);
  }
  reduce(f.ResultNumTop, f.ResultNumBottom);
}

void Multiply(FractionCalculatorFields& f, std::int32_t n1, std::int32_t b1, std::int32_t n2,
              std::int32_t b2, bool signs_differ) {
  f.ResultNumBottom = Str(WrapMul(b1, b2));
  f.ResultNumTop = Str(WrapMul(n1, n2));
  WholeSplit split{0, 0};
  if (TakesWholePart(f, split)) {
    f.ResultWhole = Str(split.whole);
    f.ResultNumTop = Str(split.remainder);
  }
  // The sign goes on the whole part even when there is none, as "0"; the next
  // step clears such a "0".
  if (signs_differ) f.ResultWhole = Str(WrapNeg(split.whole));
  MoveSignToTop(f, signs_differ);
  reduce(f.ResultNumTop, f.ResultNumBottom);
}

void Divide(FractionCalculatorFields& f, std::int32_t n1, std::int32_t b1, std::int32_t n2,
            std::int32_t b2, bool signs_differ) {
  f.ResultNumBottom = Str(WrapMul(b1, n2));
  f.ResultNumTop = Str(WrapMul(n1, b2));
  WholeSplit split{};
  if (TakesWholePart(f, split)) {
    f.ResultWhole = Str(split.whole);
    if (signs_differ) f.ResultWhole = Str(WrapNeg(split.whole));
    f.ResultNumTop = Str(split.remainder);
  }
  MoveSignToTop(f, signs_differ);
  reduce(f.ResultNumTop, f.ResultNumBottom);
}

}  // namespace

FractionFeedback FractionCalculateButtonAction(FractionCalculatorFields& f,
                                               std::string_view operator_text, std::string_view sep,
                                               const FractionMessageBox& message_box) {
  FractionFeedback feedback;
  const bool negative1 = ValidateOperand(f, f.whole1, f.numtop1, sep, message_box);
  const bool negative2 = ValidateOperand(f, f.whole2, f.numtop2, sep, message_box);
  if (CDbl(f.numbottom1, sep) == 0) f.numbottom1 = "1";
  if (CDbl(f.numbottom2, sep) == 0) f.numbottom2 = "1";
  f.ResultWhole.clear();
  f.ResultNumBottom.clear();
  f.ResultNumTop.clear();

  const std::string_view* op = nullptr;
  for (const std::string_view& row : kFractionOperators) {
    if (StrEq(operator_text, row)) {
      op = &row;
      break;
    }
  }
  if (op != nullptr) {
    const std::int32_t w1 = Magnitude(f.whole1), w2 = Magnitude(f.whole2);
    const std::int32_t t1 = Magnitude(f.numtop1), t2 = Magnitude(f.numtop2);
    const std::int32_t b1 = Magnitude(f.numbottom1), b2 = Magnitude(f.numbottom2);
    // A denominator such as 0.5 is not 0 to CDbl but is 0 as an integer.
    if (b2 > 0 && b1 > 0) {
      const std::int32_t n1 = WrapAdd(WrapMul(w1, b1), t1);
      const std::int32_t n2 = WrapAdd(WrapMul(w2, b2), t2);
      const bool signs_differ = negative1 != negative2;
      const auto index = op - kFractionOperators;
      if (index == 0 || index == 1) {
        AddOrSubtract(f, n1, b1, n2, b2, negative1, negative2, index == 1);
      } else if (index == 2) {
        Multiply(f, n1, b1, n2, b2, signs_differ);
      } else {
        Divide(f, n1, b1, n2, b2, signs_differ);
      }
    }
  }

  // A result with no fraction shows as its whole part alone. Only the first
  // operand's numerator is filled in: the second stays as typed.
  if (Val(f.ResultNumTop) == 0) {
    f.ResultNumTop.clear();
    f.ResultNumBottom.clear();
  }
  if (CDbl(f.numtop1, sep) == 0) f.numtop1 = "0";
  if (CDbl(f.numbottom1, sep) == 0) f.numbottom1 = "1";
  feedback.sounds.push_back(FractionSound::kPlayResultSound);
  return feedback;
}

FractionFeedback FractionClearButtonAction(FractionCalculatorFields& f) {
  for (std::string* field : {&f.whole1, &f.numtop1, &f.numbottom1, &f.whole2, &f.numtop2,
                             &f.numbottom2, &f.ResultWhole, &f.ResultNumTop, &f.ResultNumBottom}) {
    field->clear();
  }
  return {{FractionSound::kPlayClearSound}};
}

bool TransferFractionResultToInput(FractionCalculatorFields& f) {
  if (f.ResultWhole.empty() && f.ResultNumTop.empty() && f.ResultNumBottom.empty()) return false;
  f.whole1 = f.ResultWhole;
  f.numtop1 = f.ResultNumTop;
  f.numbottom1 = f.ResultNumBottom;
  f.ResultWhole.clear();
  f.ResultNumTop.clear();
  f.ResultNumBottom.clear();
  f.whole2.clear();
  f.numtop2.clear();
  f.numbottom2.clear();
  return true;
}

}  // namespace tessarine

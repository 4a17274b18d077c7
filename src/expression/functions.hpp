// The built-in functions that a formula can call, and the operators beyond + - * /.
#pragma once

#include <optional>
#include <string_view>

namespace tessarine::expression {

enum class Function {
  kAbs,
  kAcos,
  kAsin,
  kAtan,
  kAtan2,
  kCeil,
  kCos,
  kExp,
  kFloor,
  kLog,
  kMax,
  kMin,
  kPow,
  kRound,
  kSin,
  kSqrt,
  kTan,
};

// The function of that name, letters in any case; none for any other name.
std::optional<Function> FindFunction(std::string_view name);
int ArgumentCount(Function f);

// Angles are in radians. Results follow IEEE arithmetic: a domain error gives
// not-a-number and a pole an infinity, never a fault.
double Apply(Function f, double x);
double Apply(Function f, double x, double y);

// Whole-number quotient: both operands are cut to 64-bit integers toward zero
// (saturating, not-a-number as 0) and the quotient is cut toward zero. The divisor
// must not be zero once cut.
double IntegerDivide(double x, double y);
// True when `\` would divide by zero.
bool IntegerDivisorIsZero(double y);
// Remainder of x / y with the sign of x, exact; y must not be zero.
double Modulo(double x, double y);

}  // namespace tessarine::expression

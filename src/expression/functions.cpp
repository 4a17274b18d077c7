#include "expression/functions.hpp"

#include <array>
#include <cmath>
#include <cstdint>

#include "runtime/arithmetic.hpp"
#include "runtime/text.hpp"

namespace tessarine::expression {
namespace {

struct Entry {
  std::string_view name;
  Function function;
  int arguments;
};

constexpr std::array<Entry, 17> kFunctions = {{
    {"abs", Function::kAbs, 1},
    {"acos", Function::kAcos, 1},
    {"asin", Function::kAsin, 1},
    {"atan", Function::kAtan, 1},
    {"atan2", Function::kAtan2, 2},
    {"ceil", Function::kCeil, 1},
    {"cos", Function::kCos, 1},
    {"exp", Function::kExp, 1},
    {"floor", Function::kFloor, 1},
    {"log", Function::kLog, 1},
    {"max", Function::kMax, 2},
    {"min", Function::kMin, 2},
    {"pow", Function::kPow, 2},
    {"round", Function::kRound, 1},
    {"sin", Function::kSin, 1},
    {"sqrt", Function::kSqrt, 1},
    {"tan", Function::kTan, 1},
}};

}  // namespace

std::optional<Function> FindFunction(std::string_view name) {
  if (name.size() > 5) return std::nullopt;
  for (const Entry& e : kFunctions)
    if (StrEq(name, e.name)) return e.function;
  return std::nullopt;
}

int ArgumentCount(Function f) {
  return kFunctions[static_cast<int>(f)].arguments;
}

double Apply(Function f, double x) {
  switch (f) {
    case Function::kAbs:
      return Abs(x);
    case Function::kAcos:
      return ACos(x);
    case Function::kAsin:
      return ASin(x);
    case Function::kAtan:
      return ATan(x);
    case Function::kCeil:
      return Ceil(x);
    case Function::kCos:
      return Cos(x);
    case Function::kExp:
      return Exp(x);
    case Function::kFloor:
      return Floor(x);
    case Function::kLog:
      return Log(x);
    case Function::kRound:
      return Round(x);
    case Function::kSin:
      return Sin(x);
    case Function::kSqrt:
      return Sqrt(x);
    case Function::kTan:
      return Tan(x);
    default:
      return std::nan("");
  }
}

double Apply(Function f, double x, double y) {
  switch (f) {
    case Function::kAtan2:
      return std::atan2(x, y);
    // A not-a-number argument is never hidden by the other one.
    case Function::kMax:
      return std::isnan(x) || std::isnan(y) ? std::nan("") : (y > x ? y : x);
    case Function::kMin:
      return std::isnan(x) || std::isnan(y) ? std::nan("") : (y < x ? y : x);
    case Function::kPow:
      return Pow(x, y);
    default:
      return std::nan("");
  }
}

bool IntegerDivisorIsZero(double y) {
  return WholePart(y) == 0;
}

double IntegerDivide(double x, double y) {
  const std::int64_t a = WholePart(x);
  const std::int64_t b = WholePart(y);
  // The one quotient that leaves the 64-bit range.
  if (b == -1) return -static_cast<double>(a);
  return static_cast<double>(a / b);  // NOLINT(bugprone-integer-division): whole by intent
}

double Modulo(double x, double y) {
  return std::fmod(x, y);
}

}  // namespace tessarine::expression

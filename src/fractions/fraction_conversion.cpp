#include "fractions/fraction_conversion.hpp"

#include <cstdint>

#include "fractions/int32_arithmetic.hpp"
#include "fractions/reduce.hpp"
#include "runtime/arithmetic.hpp"
#include "runtime/numbers.hpp"

namespace tessarine {

void ConvertFractionToDecimalButtonAction(FractionToDecimalFields& f, std::string_view sep) {
  f.answerd.clear();
  const double top = Val(f.topper);
  const double bottom = Val(f.bottomer);
  const double whole = Val(f.main);
  if (top > 0 && bottom > 0 && whole > 0) {
    // A bottom such as 0.5 is 0 as an integer, and the float division gives INF.
    f.answerd = Str(ToInt32(whole) + static_cast<double>(ToInt32(top)) / ToInt32(bottom));
  } else if (top > 0 && bottom > 0) {
    const double q = static_cast<double>(ToInt32(top)) / ToInt32(bottom);
    f.answerd = Str(q);
    if (CDbl(f.main, sep) < 0) {
      const std::int32_t m = ToInt32(CDbl(f.main, sep));
      f.answerd = Str(-(q + Abs(m)));
    }
  } else if (bottom == 0) {
    f.answerd = "Undefined";
  }
}

void ClearFractionToDecimalButtonAction(FractionToDecimalFields& f) {
  f.main.clear();
  f.topper.clear();
  f.bottomer.clear();
  f.answerd.clear();
}

void RoundedBevelButton7Action(DecimalToFractionFields& f, std::string_view sep) {
  if (f.dec.empty()) return;
  f.main2.clear();
  f.topnum.clear();
  f.bnum.clear();
  const double magnitude = Abs(Val(f.dec));
  const std::int32_t w = ToInt32(magnitude);
  // Cut toward zero: a decimal between -1 and 0 loses its minus.
  const std::int32_t s = ToInt32(CDbl(f.dec, sep));
  const double fraction = (magnitude - w) * kDecimalResolution;
  if (fraction >= 1.0) {
    f.main2 = Str(w);
    f.topnum = Str(Round(fraction));
    f.bnum = "100000";
  }
  reduce(f.topnum, f.bnum);
  if (s < 0) f.main2 = Str(-static_cast<double>(w));
  if (CDbl(f.topnum, sep) == 0 && CDbl(f.bnum, sep) == 0) {
    f.bnum = "1";
    f.main2 = f.dec;
  }
}

void RoundedBevelButton8Action(DecimalToFractionFields& f) {
  f.dec.clear();
  f.main2.clear();
  f.topnum.clear();
  f.bnum.clear();
}

}  // namespace tessarine

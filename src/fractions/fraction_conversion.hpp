// Fraction to decimal and decimal to fraction, the fractions tab's second and third
// modes. Neither plays a sound, speaks or writes to the tape.
#pragma once

#include <string>
#include <string_view>

namespace tessarine {

// The texts of the fraction-to-decimal page, named as the window's controls.
struct FractionToDecimalFields {
  std::string main, topper, bottomer, answerd;
};

// The texts of the decimal-to-fraction page, named as the window's controls.
struct DecimalToFractionFields {
  std::string dec, main2, topnum, bnum;
};

// The denominator of decimal to fraction: five decimal places.
inline constexpr double kDecimalResolution = 100000.0;

// Calculate on the fraction-to-decimal page: answerd gets the decimal, "Undefined"
// for a zero denominator, or stays empty for a zero or negative fraction.
void ConvertFractionToDecimalButtonAction(FractionToDecimalFields& fields,
                                          std::string_view decimal_separator);
// Clear on that page.
void ClearFractionToDecimalButtonAction(FractionToDecimalFields& fields);

// Calculate on the decimal-to-fraction page: the fraction in hundred-thousandths,
// reduced; a fraction under the resolution leaves dec's text in main2 over 0/1.
// An empty dec changes nothing.
void RoundedBevelButton7Action(DecimalToFractionFields& fields, std::string_view decimal_separator);
// Clear on that page.
void RoundedBevelButton8Action(DecimalToFractionFields& fields);

}  // namespace tessarine

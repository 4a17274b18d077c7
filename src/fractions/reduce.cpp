#include "fractions/reduce.hpp"

#include <cstdint>
#include <numeric>

#include "fractions/int32_arithmetic.hpp"
#include "runtime/arithmetic.hpp"
#include "runtime/numbers.hpp"

namespace tessarine {

namespace {

std::uint32_t PowMod(std::uint64_t base, std::uint32_t exponent, std::uint32_t n) {
  std::uint64_t result = 1;
  base %= n;
  while (exponent > 0) {
    if (exponent & 1u) result = result * base % n;
    base = base * base % n;
    exponent >>= 1;
  }
  return static_cast<std::uint32_t>(result);
}

// Miller-Rabin with the bases 2, 7 and 61, which decide every n below 4759123141.
bool IsPrime(std::uint32_t n) {
  if (n < 2) return false;
  for (std::uint32_t p : {2u, 3u, 5u, 7u, 61u}) {
    if (n % p == 0) return n == p;
  }
  std::uint32_t d = n - 1;
  int s = 0;
  while ((d & 1u) == 0) {
    d >>= 1;
    ++s;
  }
  for (std::uint32_t a : {2u, 7u, 61u}) {
    std::uint64_t x = PowMod(a, d, n);
    if (x == 1 || x == n - 1) continue;
    bool composite = true;
    for (int r = 1; r < s && composite; ++r) {
      x = x * x % n;
      if (x == n - 1) composite = false;
    }
    if (composite) return false;
  }
  return true;
}

// One round of the loop at divisor p: divide while the integers of both are
// divisible. A bottom that a division leaves unchanged (an infinite one) ends the
// round, where the loop itself would never end.
void DivideOut(double& x, double& y, std::int64_t p) {
  while (ToInt32(x) % p == 0 && ToInt32(y) % p == 0) {
    const double next_y = y / static_cast<double>(p);
    if (next_y == y) return;
    x /= static_cast<double>(p);
    y = next_y;
  }
}

}  // namespace

FractionMagnitudes ReduceMagnitudes(double x, double y) {
  const std::int32_t limit = ToInt32(y / 2.0);
  if (limit < 2) return {x, y};
  const auto ix = static_cast<std::uint32_t>(ToInt32(x));
  const auto iy = static_cast<std::uint32_t>(ToInt32(y));
  const std::uint32_t g = std::gcd(ix, iy);
  if (g < 2) return {x, y};

  if (x == static_cast<double>(ix) && y == static_cast<double>(iy)) {
    // Whole numbers within range: every prime factor of g lies within the limit
    // unless g is the bottom itself and prime; one exact division does the rest.
    if (g == iy && IsPrime(g)) return {x, y};
    return {x / g, y / g};
  }

  // A fractional or saturated operand: the same divisors, one at a time and in the
  // loop's ascending order, so that the float divisions round as the loop's do.
  std::uint32_t rest = g;
  for (std::uint32_t p = 2; p <= rest / p; p += (p == 2 ? 1 : 2)) {
    if (rest % p != 0) continue;
    if (static_cast<std::int64_t>(p) > limit) return {x, y};
    while (rest % p == 0) rest /= p;
    DivideOut(x, y, p);
  }
  if (rest > 1 && static_cast<std::int64_t>(rest) <= limit) DivideOut(x, y, rest);
  return {x, y};
}

void reduce(std::string& top_text, std::string& bottom_text) {
  const double top_value = Val(top_text);
  const double bottom_value = Val(bottom_text);
  const std::int32_t top = ToInt32(top_value);
  const std::int32_t bottom = ToInt32(bottom_value);
  FractionMagnitudes m = ReduceMagnitudes(Abs(top_value), Abs(bottom_value));
  if ((top > 0 && bottom < 0) || (top < 0 && bottom >= 1)) m.top = m.top * -1.0;
  top_text = Str(m.top);
  bottom_text = Str(m.bottom);
}

}  // namespace tessarine

#include "fractions/reduce.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "literal_reduce.hpp"
#include "runtime/numbers.hpp"

namespace tessarine {
namespace {

struct TextPair {
  std::string top;
  std::string bottom;
};

// Both reductions of one pair, compared text for text: the texts carry the float
// bits that Val gives back.
void ExpectSameAsLoop(const TextPair& pair) {
  std::string fast_top = pair.top, fast_bottom = pair.bottom;
  std::string loop_top = pair.top, loop_bottom = pair.bottom;
  reduce(fast_top, fast_bottom);
  literal::LiteralReduce(loop_top, loop_bottom);
  EXPECT_EQ(fast_top, loop_top) << pair.top << " / " << pair.bottom;
  EXPECT_EQ(fast_bottom, loop_bottom) << pair.top << " / " << pair.bottom;
}

std::string S(std::int64_t n) {
  return Str(static_cast<double>(n));
}

// Its callers give it whole numbers only: Str of 32-bit results, or of a rounded count of
// hundred-thousandths (beyond 32 bits in one conversion row).
TEST(ReduceTest, ReducesAsTheWindowShowsIt) {
  struct Row {
    const char* name;
    TextPair in;
    TextPair out;
  };
  const Row rows[] = {
      {"nine over nine", {"9", "9"}, {"1", "1"}},
      {"three over three stays", {"3", "3"}, {"3", "3"}},
      {"five over five stays", {"5", "5"}, {"5", "5"}},
      {"twenty five over twenty five", {"25", "25"}, {"1", "1"}},
      {"zero top takes the bottom to one", {"0", "4"}, {"0", "1"}},
      {"both empty", {"", ""}, {"0", "0"}},
      {"negative bottom moves the minus up", {"2", "-8"}, {"-1", "4"}},
      {"both negative stay negative on top", {"-2", "-8"}, {"1", "4"}},
      {"hundred-thousandths", {"25000", "100000"}, {"1", "4"}},
      {"bottom two is never tried", {"2", "2"}, {"2", "2"}},
      {"largest common prime found last", {"999999937", "1999999874"}, {"1", "2"}},
      {"top of 2^31 left whole", {"2147483648", "4"}, {"2147483648", "4"}},
  };
  for (const Row& row : rows) {
    std::string top = row.in.top, bottom = row.in.bottom;
    reduce(top, bottom);
    EXPECT_EQ(top, row.out.top) << row.name;
    EXPECT_EQ(bottom, row.out.bottom) << row.name;
  }
}

// Small bottoms keep the loop cheap; tops cover the whole 32-bit range, and half of
// the pairs share a factor so that the loop has something to find.
TEST(ReduceTest, MatchesTheLoopOnRandomPairs) {
  std::mt19937_64 rng(20240611);
  std::uniform_int_distribution<std::int64_t> any_int32(INT32_MIN, INT32_MAX);
  std::uniform_real_distribution<double> log_bottom(0.0, 15.0);
  for (int n = 0; n < 100000; ++n) {
    auto bottom = static_cast<std::int64_t>(std::exp2(log_bottom(rng)));
    std::int64_t top = any_int32(rng);
    if (n % 2 == 1) {
      const std::int64_t g = bottom;
      bottom = g * static_cast<std::int64_t>(std::exp2(log_bottom(rng) / 3));
      top = top / g * g;
    }
    if (rng() % 4 == 0) bottom = -bottom;
    ExpectSameAsLoop({S(top), S(bottom)});
  }
}

TEST(ReduceTest, MatchesTheLoopOnEdgeCases) {
  std::vector<TextPair> pairs;
  for (std::int64_t bottom : {0, 1, 2, 3, 4, -1, -2, -4}) {
    for (std::int64_t top :
         std::vector<std::int64_t>{0, 1, 2, 4, -1, -2, -4, INT32_MAX, INT32_MIN, 2147483648}) {
      pairs.push_back({S(top), S(bottom)});
    }
  }
  // Primes, prime powers and squares of primes: the bottom alone, and with tops that
  // share all, part or none of the factor.
  for (std::int64_t p : {5, 7, 97, 3571, 46337, 46349}) {
    if (p < 50000) pairs.push_back({S(p), S(p)});
    for (std::int64_t bottom : {p, p * p, p * p * p, 2 * p}) {
      if (bottom > 300000) continue;
      for (std::int64_t top : {p, p * p, p * 3, p + 1, -p, std::int64_t{0}, INT32_MAX / p * p}) {
        pairs.push_back({S(top), S(bottom)});
        pairs.push_back({S(top), S(-bottom)});
      }
    }
  }
  for (std::int64_t k = 1; k <= 30; ++k)
    pairs.push_back({S(std::int64_t{1} << (k % 17)), S(1 << 16)});
  // A common factor that only the last rounds reach: twice or three times a prime.
  for (std::int64_t p : {65521, 99991, 131071}) {
    pairs.push_back({S(p), S(2 * p)});
    pairs.push_back({S(2 * p), S(3 * p)});
    pairs.push_back({S(-p), S(2 * p)});
  }
  for (const TextPair& pair : pairs) ExpectSameAsLoop(pair);
}

// Bottoms near 2^31, where the loop runs about a billion rounds each.
TEST(ReduceTest, MatchesTheLoopOnBigWorstCases) {
  const TextPair pairs[] = {
      {"999999937", "1999999874"},  // the common prime is the loop's last divisor
      {"46337", "2147117569"},      // the square of the prime below the square root of 2^31
  };
  for (const TextPair& pair : pairs) ExpectSameAsLoop(pair);
}

}  // namespace
}  // namespace tessarine

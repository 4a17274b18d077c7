// Fails when the build lets the compiler fuse or reorder floating-point operations,
// which would move the last digits of every statistic.
#include <gtest/gtest.h>

#include <cmath>

#include "runtime/numbers.hpp"

namespace {

TEST(StrictFloat, NoFastMath) {
#ifdef __FAST_MATH__
  ADD_FAILURE() << "built with fast-math";
#endif
  volatile double zero = 0.0;
  EXPECT_TRUE(std::isnan(zero / zero));  // finite-math-only folds this to false
  volatile double big = 1e16;
  const double lost = (big + 1.0) - big;  // reassociation would give 1
  EXPECT_EQ(lost, 0.0);
}

TEST(StrictFloat, NoMultiplyAddContraction) {
  // (1 + 2^-27)(1 - 2^-27) = 1 - 2^-54 rounds to 1, so a separate multiply and add give
  // 0; a fused multiply-add keeps -2^-54. Val keeps the operands out of the compiler's
  // view.
  const double a = tessarine::Val("1.000000007450580596923828125");
  const double b = tessarine::Val("0.999999992549419403076171875");
  const double c = tessarine::Val("-1");
  EXPECT_EQ(a * b + c, 0.0);
}

}  // namespace

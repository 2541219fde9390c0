// Comparison with a relative tolerance written at each assertion.
#pragma once

#include <cmath>
#include <gtest/gtest.h>

namespace quor::test {

inline ::testing::AssertionResult RelativNahe(const char* ausdruckIst, const char* ausdruckSoll, const char*,
                                              double ist, double soll, double toleranz) {
  const double massstab = std::max(std::fabs(soll), 1e-300);
  if (std::isfinite(ist) && std::fabs(ist - soll) <= toleranz * massstab)
    return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure()
         << ausdruckIst << " = " << ist << " differs from " << ausdruckSoll << " = " << soll
         << " by more than the relative tolerance " << toleranz;
}

} // namespace quor::test

#define EXPECT_REL(ist, soll, toleranz) EXPECT_PRED_FORMAT3(::quor::test::RelativNahe, ist, soll, toleranz)
#define ASSERT_REL(ist, soll, toleranz) ASSERT_PRED_FORMAT3(::quor::test::RelativNahe, ist, soll, toleranz)

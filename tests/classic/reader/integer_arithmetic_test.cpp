#include "classic/reader/integer_arithmetic.h"

#include <limits>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

TEST(Truncate, GoesTowardZero) {
  EXPECT_EQ(Truncate(7.9), 7);
  EXPECT_EQ(Truncate(-7.9), -7);
  EXPECT_EQ(Truncate(-0.5), 0);
}

TEST(Truncate, SaturatesOutsideThirtyTwoBits) {
  EXPECT_EQ(Truncate(2147483647.0), kHighest);
  EXPECT_EQ(Truncate(2147483648.0), kHighest);
  EXPECT_EQ(Truncate(-2147483648.0), kLowest);
  EXPECT_EQ(Truncate(-1e300), kLowest);
  EXPECT_EQ(Truncate(std::numeric_limits<double>::infinity()), kHighest);
  EXPECT_EQ(Truncate(-std::numeric_limits<double>::infinity()), kLowest);
}

TEST(Truncate, GivesZeroForNotANumber) {
  EXPECT_EQ(Truncate(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(TruncateToUnsigned, GoesTowardZero) {
  EXPECT_EQ(TruncateToUnsigned(7.9), 7U);
  EXPECT_EQ(TruncateToUnsigned(-0.5), 0U);
}

TEST(TruncateToUnsigned, ReachesItsOwnHighestNumber) {
  EXPECT_EQ(TruncateToUnsigned(2147483648.0), 2147483648U);
  EXPECT_EQ(TruncateToUnsigned(4294967294.9), 4294967294U);
  EXPECT_EQ(TruncateToUnsigned(4294967295.0), 4294967295U);
  EXPECT_EQ(TruncateToUnsigned(4294967296.0), 4294967295U);
  EXPECT_EQ(TruncateToUnsigned(std::numeric_limits<double>::infinity()), 4294967295U);
}

TEST(TruncateToUnsigned, KeepsTheBitsOfNegativeNumbers) {
  EXPECT_EQ(TruncateToUnsigned(-2.5), 4294967294U);
  EXPECT_EQ(TruncateToUnsigned(-1e300), 2147483648U);
}

TEST(TruncateToUnsigned, GivesZeroForNotANumber) {
  EXPECT_EQ(TruncateToUnsigned(std::numeric_limits<double>::quiet_NaN()), 0U);
}

TEST(WrappingArithmetic, IsThatOfIntegersWhereTheResultFits) {
  EXPECT_EQ(WrappingAdd(3, -5), -2);
  EXPECT_EQ(WrappingSubtract(3, -5), 8);
  EXPECT_EQ(WrappingNegate(7), -7);
}

TEST(WrappingArithmetic, GoesOnAtTheOtherEndOfThirtyTwoBits) {
  EXPECT_EQ(WrappingAdd(kHighest, 1), kLowest);
  EXPECT_EQ(WrappingSubtract(kLowest, 1), kHighest);
  EXPECT_EQ(WrappingNegate(kLowest), kLowest);
}

}  // namespace
}  // namespace kelvane

#include "base/number.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

std::string Written(float value) {
  std::array<char, kNumberRoom> text;
  return {text.data(), WriteNumber(text.data(), value)};
}

struct NumberCase {
  float value;
  std::string text;
};

class NumberText : public testing::TestWithParam<NumberCase> {};

TEST_P(NumberText, IsTheShortestDecimal) {
  EXPECT_EQ(Written(GetParam().value), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Whole, NumberText,
    testing::Values(NumberCase{0, "0"}, NumberCase{-0.0F, "0"}, NumberCase{1, "1"},
                    NumberCase{-1, "-1"}, NumberCase{100, "100"}, NumberCase{16777215, "16777215"},
                    NumberCase{16777216, "16777216"}, NumberCase{-16777216, "-16777216"},
                    NumberCase{2147483648.0F, "2147483648"}, NumberCase{1e15F, "999999986991104"}));

INSTANTIATE_TEST_SUITE_P(
    Fractions, NumberText,
    testing::Values(NumberCase{0.5F, "0.5"}, NumberCase{-0.5F, "-0.5"}, NumberCase{0.1F, "0.1"},
                    NumberCase{255.0F / 256, "0.99609375"}, NumberCase{1.0F / 3, "0.33333334"},
                    NumberCase{1.5F, "1.5"}, NumberCase{123456.79F, "123456.79"},
                    NumberCase{8388607.5F, "8388607.5"}));

INSTANTIATE_TEST_SUITE_P(Tiny, NumberText,
                         testing::Values(NumberCase{1e-10F, "0.0000000001"},
                                         NumberCase{-2.5e-7F, "-0.00000025"},
                                         NumberCase{std::numeric_limits<float>::denorm_min(),
                                                    "0." + std::string(44, '0') + "1"}));

INSTANTIATE_TEST_SUITE_P(OutOfRange, NumberText,
                         testing::Values(NumberCase{std::numeric_limits<float>::quiet_NaN(), "0"},
                                         NumberCase{-std::numeric_limits<float>::quiet_NaN(),
                                                    "0"}));

/// By the standard library.
std::string Standard(float value) {
  std::array<char, kNumberRoom> text;
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed).ptr;
  return {text.data(), end};
}

TEST(WriteNumber, WritesEveryShadeOfAColorAsTheStandardLibraryDoes) {
  for (int shade = -255; shade <= 255; ++shade) {
    const float value = static_cast<float>(shade) / 256;
    EXPECT_EQ(Written(value), Standard(value));
  }
}

TEST(WriteNumber, WritesThousandthsAndTheirNeighboursAsTheStandardLibraryDoes) {
  for (int count = -16'500'000; count <= 16'500'000; count += 997) {
    const float value = static_cast<float>(count) / 1000;
    for (const float near : {value, std::nextafter(value, 1e9F), std::nextafter(value, -1e9F)})
      ASSERT_EQ(Written(near), Standard(near));
  }
  for (int count = 1; count < 1000; ++count)
    ASSERT_EQ(Written(static_cast<float>(count) / 1000),
              Standard(static_cast<float>(count) / 1000));
}

TEST(WriteNumber, WritesHundredthsAndTheirNeighboursAsTheStandardLibraryDoes) {
  for (int count = -13'200'000; count <= 13'200'000; count += 997) {
    const float value = static_cast<float>(count) / 100;
    for (const float near : {value, std::nextafter(value, 1e9F), std::nextafter(value, -1e9F)})
      ASSERT_EQ(Written(near), Standard(near));
  }
}

TEST(WriteNumber, WritesInfinityAsTheLargestNumber) {
  constexpr float kInfinity = std::numeric_limits<float>::infinity();
  constexpr float kLargest = std::numeric_limits<float>::max();
  EXPECT_EQ(Written(kInfinity), Written(kLargest));
  EXPECT_EQ(Written(-kInfinity), Written(-kLargest));
}

TEST(WriteNumber, EndsAWholeNumberBeyond64BitsInAPoint) {
  EXPECT_EQ(Written(0x1p62F), "4611686018427387904");
  EXPECT_EQ(Written(0x1p63F), "9223372036854775808.");
  EXPECT_EQ(Written(-0x1p64F), "-18446744073709551616.");
}

TEST(WriteNumber, ReadsBackToTheSameValueWithoutAnExponent) {
  // Every sign, exponent and some significands: an odd stride through all bit patterns.
  constexpr std::uint32_t kStride = 99991;
  for (std::uint64_t bits = 0; bits <= 0xFFFFFFFF; bits += kStride) {
    const auto value = std::bit_cast<float>(static_cast<std::uint32_t>(bits));
    if (!std::isfinite(value)) continue;
    const std::string text = Written(value);
    ASSERT_EQ(std::strtof(text.c_str(), nullptr), value) << text;
    ASSERT_EQ(text.find_first_not_of("-.0123456789"), std::string::npos) << text;
    ASSERT_LE(text.size(), 48U);
  }
}

}  // namespace
}  // namespace kelvane

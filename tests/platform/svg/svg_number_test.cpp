#include "platform/svg/svg_number.h"

#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

std::string OnGrid(double extent, double coordinate) {
  const SvgGrid grid(extent);
  std::string text;
  grid.Append(text, grid.Steps(coordinate));
  return text;
}

TEST(SvgGrid, HasAsManyDecimalsAsTheExtentNeeds) {
  EXPECT_EQ(OnGrid(100'000, 12.3456789), "12");
  EXPECT_EQ(OnGrid(99'999, 12.3456789), "12.3");
  EXPECT_EQ(OnGrid(500, 12.3456789), "12.346");
  EXPECT_EQ(OnGrid(1, 12.3456789), "12.34568");
}

TEST(SvgGrid, HasNoMoreThanEightDecimals) {
  EXPECT_EQ(OnGrid(0, 1.0 / 3), ".33333333");
}

TEST(SvgGrid, WritesNothingThatDoesNotCount) {
  EXPECT_EQ(OnGrid(500, 0), "0");
  EXPECT_EQ(OnGrid(500, -0.0001), "0");
  EXPECT_EQ(OnGrid(500, 0.5), ".5");
  EXPECT_EQ(OnGrid(500, -0.05), "-.05");
  EXPECT_EQ(OnGrid(500, 20), "20");
  EXPECT_EQ(OnGrid(500, 20.010), "20.01");
}

TEST(SvgGrid, BringsWhatIsFarOutNearer) {
  EXPECT_EQ(OnGrid(500, std::numeric_limits<float>::max()), "1000000000");
  EXPECT_EQ(OnGrid(500, -std::numeric_limits<float>::max()), "-1000000000");
}

std::string ListOf(std::initializer_list<double> numbers) {
  const SvgGrid grid(500);
  std::string text = "m";
  SvgNumberList list(text, grid);
  for (const double number : numbers)
    list.Append(grid.Steps(number));
  return text;
}

TEST(SvgNumberList, SetsNumbersApartOnlyWhereTheyWouldRunIntoEachOther) {
  EXPECT_EQ(ListOf({1, 2}), "m1 2");
  EXPECT_EQ(ListOf({1, -2}), "m1-2");
  EXPECT_EQ(ListOf({1, .5}), "m1 .5");
  EXPECT_EQ(ListOf({1.5, .5}), "m1.5.5");
  EXPECT_EQ(ListOf({.5, .25}), "m.5.25");
  EXPECT_EQ(ListOf({.5, 2}), "m.5 2");
  EXPECT_EQ(ListOf({.5, 0}), "m.5 0");
  EXPECT_EQ(ListOf({0, .5}), "m0 .5");
}

std::string Number(double value) {
  std::string text;
  AppendSvgNumber(text, value);
  return text;
}

TEST(SvgNumber, HasSixDigits) {
  EXPECT_EQ(Number(1.0 / 3), ".333333");
  EXPECT_EQ(Number(-2.0 / 3), "-.666667");
  EXPECT_EQ(Number(123456.7), "123457");
  EXPECT_EQ(Number(0), "0");
  EXPECT_EQ(Number(-0.0), "0");
  EXPECT_EQ(Number(1e-9), "1e-09");
  EXPECT_EQ(Number(2.5e12), "2.5e+12");
  EXPECT_EQ(Number(.00123456789), ".00123457");
  EXPECT_EQ(Number(.0123456789), ".0123457");
  EXPECT_EQ(Number(1.23456789), "1.23457");
  EXPECT_EQ(Number(99.99999999), "100");
  EXPECT_EQ(Number(987654321), "987654321");
}

TEST(SvgTransform, IsLeftOutWhereItChangesNothing) {
  std::string text;
  AppendSvgTransform(text, "transform", CGAffineTransformIdentity);
  EXPECT_EQ(text, "");
  AppendSvgTransform(text, "transform", {.5F, 0, 0, -1, 10, 20});
  EXPECT_EQ(text, " transform=\"matrix(.5 0 0 -1 10 20)\"");
}

}  // namespace
}  // namespace kelvane

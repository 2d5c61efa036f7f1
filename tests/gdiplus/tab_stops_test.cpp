#include "gdiplus/tab_stops.h"

#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace kelvane::gdiplus {
namespace {

using Distances = std::vector<float>;

TEST(TabStops, AreEachCountedFromTheOneBefore) {
  const TabStops stops(0, Distances{150, 100, 70}, 10);
  EXPECT_EQ(stops.After(0), 150);
  EXPECT_EQ(stops.After(150), 250);
  EXPECT_EQ(stops.After(251), 320);
}

TEST(TabStops, GoOnBeyondTheLast) {
  const TabStops stops(0, Distances{150, 100}, 10);
  EXPECT_EQ(stops.After(250), 350);
  EXPECT_EQ(stops.After(449), 450);
}

TEST(TabStops, BeginBehindTheFirstOffset) {
  const TabStops stops(5, Distances{150}, 10);
  EXPECT_EQ(stops.After(0), 5);
  EXPECT_EQ(stops.After(5), 155);
}

TEST(TabStops, AreRegularWhereNoneAreGiven) {
  const TabStops stops(0, {}, 10);
  EXPECT_EQ(stops.After(0), 10);
  EXPECT_EQ(stops.After(10), 20);
  EXPECT_EQ(stops.After(25), 30);
}

TEST(TabStops, AreNotWhereNumbersLeadNowhere) {
  constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
  constexpr float kInfinity = std::numeric_limits<float>::infinity();
  const TabStops stops(kNaN, Distances{kNaN, -3, 0, kInfinity, 20}, 10);
  EXPECT_EQ(stops.After(0), 20);
}

TEST(TabStops, NeverLeadBack) {
  const TabStops stops(0, Distances{1}, 10);
  EXPECT_GE(stops.After(1e30), 1e30);
}

}  // namespace
}  // namespace kelvane::gdiplus

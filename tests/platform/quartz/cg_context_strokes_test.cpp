#include <array>
#include <string>

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/surface.h"
#include "support/surface_values.h"

namespace kelvane {
namespace {

using test::kInfinity;
using test::kNaN;
using test::StrokeLine;
using test::TraceOf;

/// What a stroked line's trace has before its path.
std::string StateOf(const test::Drawing& set) {
  const std::string trace = TraceOf([&](CGContextRef c) {
    set(c);
    StrokeLine(c, {1, 2}, {3, 4});
  });
  return trace.substr(0, trace.find("move"));
}

TEST(Stroke, HasTheCapAndJoinThatAreSet) {
  EXPECT_EQ(StateOf([](CGContextRef c) {
              CGContextSetLineCap(c, kCGLineCapRound);
              CGContextSetLineJoin(c, kCGLineJoinBevel);
            }),
            "line-cap 1\nline-join 2\n");
}

TEST(Stroke, IsDashedFromThePhaseOn) {
  constexpr std::array<CGFloat, 2> kLengths = {3, 1};
  EXPECT_EQ(StateOf([&](CGContextRef c) {
              CGContextSetLineDash(c, 2, kLengths.data(), kLengths.size());
            }),
            "line-dash 3 1 from 2\n");
}

TEST(Stroke, HasItsDashesScaledWithItsWidth) {
  constexpr std::array<CGFloat, 2> kLengths = {3, 1};
  EXPECT_EQ(StateOf([&](CGContextRef c) {
              CGContextConcatCTM(c, CGAffineTransformMakeScale(2, 2));
              CGContextSetLineDash(c, 1, kLengths.data(), kLengths.size());
            }),
            "line-width 2\nline-dash 6 2 from 2\n");
}

TEST(Stroke, HasItsDashesDeformedWithThePen) {
  constexpr std::array<CGFloat, 2> kLengths = {3, 1};
  const std::string trace = TraceOf([&](CGContextRef c) {
    CGContextConcatCTM(c, CGAffineTransformMakeScale(2, 4));
    CGContextSetLineDash(c, 0, kLengths.data(), kLengths.size());
    StrokeLine(c, {1, 2}, {3, 4});
  });
  EXPECT_EQ(trace, "line-dash 3 1 from 0\nmove 2 8\nline 6 16\nstroke under 2 0 0 4 0 0\n");
}

TEST(Stroke, ThatIsAsThinAsCanBeIsNotDeformed) {
  const std::string trace = TraceOf([&](CGContextRef c) {
    CGContextConcatCTM(c, CGAffineTransformMakeScale(2, 4));
    CGContextSetLineWidth(c, 0);
    StrokeLine(c, {1, 2}, {3, 4});
  });
  EXPECT_EQ(trace, "line-width 0\nmove 2 8\nline 6 16\nstroke\n");
}

TEST(Stroke, IsSolidWhereDashesAreNone) {
  const std::array<std::array<CGFloat, 2>, 4> rows = {{{0, 0}, {-1, 2}, {kNaN, 1}, {1, kInfinity}}};
  for (const auto& lengths : rows) {
    EXPECT_EQ(StateOf([&](CGContextRef c) {
                CGContextSetLineDash(c, 0, lengths.data(), lengths.size());
              }),
              "")
        << lengths[0] << ' ' << lengths[1];
  }
}

TEST(Stroke, IsSolidAgainAfterTheStateIsRestored) {
  constexpr std::array<CGFloat, 1> kLengths = {3};
  EXPECT_EQ(TraceOf([&](CGContextRef c) {
              CGContextSaveGState(c);
              CGContextSetLineDash(c, 0, kLengths.data(), kLengths.size());
              StrokeLine(c, {1, 2}, {3, 4});
              CGContextRestoreGState(c);
              StrokeLine(c, {1, 2}, {3, 4});
            }),
            "line-dash 3 from 0\nmove 1 2\nline 3 4\nstroke\n"
            "line-dash from 0\nmove 1 2\nline 3 4\nstroke\n");
}

}  // namespace
}  // namespace kelvane

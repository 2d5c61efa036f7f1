#include "platform/quartz/cg_shading.h"

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/surface.h"
#include "support/surface_values.h"

namespace kelvane {
namespace {

using test::kInfinity;
using test::kNaN;
using test::TraceOf;

constexpr CGColor kRed = {1, 0, 0, 1};
constexpr CGColor kBlue = {0, 0, 1, 1};

CGAxialShading RedToBlue(CGPoint start, CGPoint end) {
  return {start, end, {{0, kRed}, {1, kBlue}}};
}

CGTriangleMesh Triangle() {
  return {{{{0, 0}, kRed}, {{10, 0}, kRed}, {{0, 10}, kBlue}}};
}

/// @return where the colours of the line from (0, 0) to `end` end once they are mapped.
CGPoint EndOf(CGPoint end, const CGAffineTransform& transform) {
  const auto mapped = Mapped(RedToBlue({0, 0}, end), transform);
  return mapped ? std::get<CGAxialShading>(*mapped).end : CGPoint{kNaN, kNaN};
}

TEST(MappedShading, MovesALineWithItsSpace) {
  EXPECT_EQ(Mapped(RedToBlue({1, 2}, {3, 4}), {1, 0, 0, 1, 10, 20}),
            CGShading(RedToBlue({11, 22}, {13, 24})));
  EXPECT_EQ(Mapped(RedToBlue({1, 2}, {3, 4}), {0, 2, -2, 0, 0, 0}),
            CGShading(RedToBlue({-4, 2}, {-8, 6})));
}

// Along x + y = c a colour stays the same, so after the stretch along x / 2 + y = c.
TEST(MappedShading, KeepsColoursWhereAStretchPutsThem) {
  const CGPoint end = EndOf({1, 1}, {2, 0, 0, 1, 0, 0});
  EXPECT_FLOAT_EQ(end.x, 0.8F);
  EXPECT_FLOAT_EQ(end.y, 1.6F);
}

// x = c becomes x - y = c.
TEST(MappedShading, KeepsColoursWhereAShearPutsThem) {
  const CGPoint end = EndOf({10, 0}, {1, 0, 1, 1, 0, 0});
  EXPECT_FLOAT_EQ(end.x, 5);
  EXPECT_FLOAT_EQ(end.y, -5);
}

TEST(MappedShading, StretchesAlongALineThatLiesOnAnAxis) {
  EXPECT_EQ(EndOf({10, 0}, {3, 0, 0, -1, 0, 0}), (CGPoint{30, 0}));
  EXPECT_EQ(EndOf({0, 10}, {3, 0, 0, -1, 0, 0}), (CGPoint{0, -10}));
}

TEST(MappedShading, MovesTrianglesWithTheirSpace) {
  const CGTriangleMesh expected = {{{{5, 0}, kRed}, {{25, 0}, kRed}, {{5, -10}, kBlue}}};
  EXPECT_EQ(Mapped(Triangle(), {2, 0, 0, -1, 5, 0}), CGShading(expected));
}

TEST(MappedShading, LeavesVerticesOutThatMakeNoTriangle) {
  CGTriangleMesh mesh = Triangle();
  mesh.vertices.resize(5);
  EXPECT_EQ(Mapped(mesh, {}), CGShading(Triangle()));
}

class UnseenShading : public testing::TestWithParam<std::pair<const char*, CGShading>> {};

TEST_P(UnseenShading, IsNone) {
  EXPECT_EQ(Mapped(GetParam().second, {}), std::nullopt);
}

CGShading WithStops(std::vector<CGGradientStop> stops) {
  return CGAxialShading{{0, 0}, {1, 0}, std::move(stops)};
}

CGShading WithVertex(const CGMeshVertex& vertex) {
  CGTriangleMesh mesh = Triangle();
  mesh.vertices[1] = vertex;
  return mesh;
}

INSTANTIATE_TEST_SUITE_P(
    Shadings, UnseenShading,
    testing::Values(std::pair{"NoLine", CGShading(RedToBlue({1, 2}, {1, 2}))},
                    std::pair{"InfiniteLine", CGShading(RedToBlue({0, 0}, {kInfinity, 0}))},
                    std::pair{"NoStops", WithStops({})},
                    std::pair{"OneStop", WithStops({{0, kRed}})},
                    std::pair{"StopsOutOfOrder", WithStops({{0.5F, kRed}, {0.25F, kBlue}})},
                    std::pair{"StopBeforeTheLine", WithStops({{-0.5F, kRed}, {1, kBlue}})},
                    std::pair{"StopBehindTheLine", WithStops({{0, kRed}, {1.5F, kBlue}})},
                    std::pair{"StopNowhere", WithStops({{0, kRed}, {kNaN, kRed}, {1, kBlue}})},
                    std::pair{"NoColour", WithStops({{0, {kNaN, 0, 0, 1}}, {1, kBlue}})},
                    std::pair{"NoVertices", CGShading(CGTriangleMesh{})},
                    std::pair{"TwoVertices",
                              CGShading(CGTriangleMesh{{{{0, 0}, kRed}, {{1, 1}, kRed}}})},
                    std::pair{"InfiniteVertex", WithVertex({{0, kInfinity}, kRed})},
                    std::pair{"NoColourAtAVertex", WithVertex({{0, 0}, {0, 0, kNaN, 1}})}),
    [](const auto& row) { return std::string(row.param.first); });

TEST(MappedShading, IsNoneWhereALineIsFlattened) {
  EXPECT_EQ(Mapped(RedToBlue({0, 0}, {1, 0}), {1, 0, 0, 0, 0, 0}), std::nullopt);
  EXPECT_EQ(Mapped(RedToBlue({0, 0}, {1, 0}), {kInfinity, 0, 0, 1, 0, 0}), std::nullopt);
}

TEST(CGContext, DrawsShadingsWhereTheTransformPutsThem) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextConcatCTM(c, {1, 0, 0, 1, 100, 0});
              CGContextDrawShading(c, RedToBlue({0, 0}, {50, 0}));
            }),
            "axial 100 0 150 0\n  stop 0 1 0 0\n  stop 1 0 0 1\n");
}

TEST(CGContext, DrawsNoShadingWhereNothingShows) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextDrawShading(c, RedToBlue({0, 0}, {0, 0}));
              CGContextMoveToPoint(c, 1, 1);
              CGContextClip(c);
              CGContextDrawShading(c, RedToBlue({0, 0}, {50, 0}));
            }),
            "");
}

TEST(Shading, IsOpaqueWhereAllOfItsColoursAre) {
  const CGColor opaque = {1, 0, 0, 1};
  const CGColor clear = {1, 0, 0, 0.5F};
  EXPECT_TRUE(IsOpaque(CGAxialShading{{0, 0}, {1, 0}, {{0, opaque}, {1, opaque}}}));
  EXPECT_FALSE(IsOpaque(CGAxialShading{{0, 0}, {1, 0}, {{0, opaque}, {1, clear}}}));
  EXPECT_TRUE(IsOpaque(CGTriangleMesh{{{{0, 0}, opaque}, {{1, 0}, opaque}, {{0, 1}, opaque}}}));
  EXPECT_FALSE(IsOpaque(CGTriangleMesh{{{{0, 0}, opaque}, {{1, 0}, opaque}, {{0, 1}, clear}}}));
}

}  // namespace
}  // namespace kelvane

#include "gdi/gradients.h"

#include <string>

#include <gtest/gtest.h>

#include "gdi/attributes.h"
#include "gdi/clipping.h"
#include "gdi/coordinates.h"
#include "gdi/stored_array.h"
#include "gdi/traced_device.h"

namespace kelvane {
namespace {

constexpr std::uint16_t kFull = 0xFF00;

class StoredVertices : public StoredArray<TriVertex> {
 public:
  StoredVertices(std::initializer_list<TriVertex> vertices) {
    for (const TriVertex& v : vertices) {
      for (const std::int32_t coordinate : {v.position.x, v.position.y})
        Add(static_cast<std::uint32_t>(coordinate));
      for (const std::uint16_t channel : {v.red, v.green, v.blue, v.alpha}) {
        Add(static_cast<std::uint8_t>(channel));
        Add(static_cast<std::uint8_t>(channel >> 8));
      }
    }
  }
};

template <class Shape>
class StoredShapes : public StoredArray<Shape> {
 public:
  StoredShapes(std::initializer_list<std::uint32_t> indexes) {
    for (const std::uint32_t index : indexes)
      this->Add(index);
  }
};
using Rectangles = StoredShapes<GradientRectangle>;
using Triangles = StoredShapes<GradientTriangle>;

TriVertex Red(PointL at) {
  return {at, kFull, 0, 0, 0};
}
TriVertex Green(PointL at) {
  return {at, 0, kFull, 0, 0};
}
TriVertex Blue(PointL at) {
  return {at, 0, 0, kFull, 0};
}

/// Fills the rectangle between the first two vertices.
std::string Filled(TracedDevice& device, const StoredVertices& vertices,
                   GradientFillMode mode = GRADIENT_FILL_RECT_H) {
  EXPECT_TRUE(GradientFill(device, vertices.View(), Rectangles({0, 1}).View(), mode));
  return device.Take();
}

std::string Meshed(TracedDevice& device, const StoredVertices& vertices,
                   const Triangles& triangles) {
  EXPECT_TRUE(GradientFill(device, vertices.View(), triangles.View()));
  return device.Take();
}

const std::string kRedToGreen = "  stop 0 1 0 0\n  stop 1 0 1 0\n";
const std::string kGreenToRed = "  stop 0 0 1 0\n  stop 1 1 0 0\n";

/// A shading within a rectangle, which lasts until something else is drawn.
std::string Within(const std::string& rectangle, const std::string& shading) {
  return "save\nrect " + rectangle + "\nclip\n" + shading;
}

// The colour of a pixel is that of its upper left corner, and a page shows it in its middle.
TEST(GradientFill, RunsFromTheLeftHalfAPixelInside) {
  TracedDevice device;
  EXPECT_EQ(Filled(device, {Red({10, 20}), Green({30, 60})}),
            Within("10 20 20 40", "axial 10.5 20.5 30.5 20.5\n" + kRedToGreen));
}

TEST(GradientFill, RunsFromTheTop) {
  TracedDevice device;
  EXPECT_EQ(Filled(device, {Red({10, 20}), Green({30, 60})}, GRADIENT_FILL_RECT_V),
            Within("10 20 20 40", "axial 10.5 20.5 10.5 60.5\n" + kRedToGreen));
}

TEST(GradientFill, TakesCornersInAnyOrder) {
  TracedDevice device;
  TracedDevice other;
  EXPECT_EQ(Filled(device, {Red({30, 20}), Green({10, 60})}),
            Within("10 20 20 40", "axial 10.5 20.5 30.5 20.5\n" + kGreenToRed));
  EXPECT_EQ(Filled(other, {Red({30, 20}), Green({10, 60})}, GRADIENT_FILL_RECT_V),
            Within("10 20 20 40", "axial 10.5 20.5 10.5 60.5\n" + kRedToGreen));
}

// 0x80FF is 128 of 255.
TEST(GradientFill, TakesTheHighBytesOfChannels) {
  TracedDevice device;
  EXPECT_EQ(Filled(device, {{{0, 0}, 0xFFFF, 0x00FF, 0x80FF, 0}, {{8, 8}, 0, 0, 0, 0}}),
            Within("0 0 8 8", "axial 0.5 0.5 8.5 0.5\n  stop 0 1 0 0.502\n  stop 1 0 0 0\n"));
}

TEST(GradientFill, FillsARectangleOfOneColorPlainly) {
  TracedDevice device;
  EXPECT_EQ(Filled(device, {Red({10, 20}), Red({30, 60})}),
            "fill-color 1 0 0\nrect 10 20 20 40\nfill\n");
}

// The first pixel of so few has the first colour.
TEST(GradientFill, FillsARectangleTooThinForColorsPlainly) {
  TracedDevice device({0.0001F, 0, 0, 1, 0, 0});
  EXPECT_EQ(Filled(device, {Green({1, 0}), Red({0, 1})}), "fill-color 1 0 0\nrect 0 0 0 1\nfill\n");
}

TEST(GradientFill, FillsNothingBetweenVerticesAboveEachOther) {
  TracedDevice device;
  EXPECT_EQ(Filled(device, {Red({10, 20}), Green({10, 60})}), "");
  EXPECT_EQ(Filled(device, {Red({10, 20}), Green({30, 20})}), "");
}

TEST(GradientFill, FillsEachRectangleOfACall) {
  TracedDevice device;
  const StoredVertices vertices = {Red({0, 0}), Green({10, 10}), Red({10, 0}), Green({0, 5})};
  EXPECT_TRUE(
      GradientFill(device, vertices.View(), Rectangles({0, 1, 2, 3}).View(), GRADIENT_FILL_RECT_H));
  EXPECT_EQ(device.Take(), Within("0 0 10 10", "axial 0.5 0.5 10.5 0.5\n" + kRedToGreen) +
                               "restore\n" +
                               Within("0 0 10 5", "axial 0.5 0.5 10.5 0.5\n" + kGreenToRed));
}

// Under transforms.

TEST(GradientFill, RunsTheOtherWayOnAMirroredDevice) {
  TracedDevice device;
  ASSERT_TRUE(SetWorldTransform(device, {-1, 0, 0, 1, 100, 0}));
  EXPECT_EQ(Filled(device, {Red({10, 20}), Green({30, 60})}),
            Within("90 20 -20 40", "axial 90.5 20.5 70.5 20.5\n" + kRedToGreen));
}

// A quarter turn: (x, y) becomes (-y, x).
TEST(GradientFill, TurnsWithTheWorld) {
  TracedDevice device;
  ASSERT_TRUE(SetWorldTransform(device, {0, 1, -1, 0, 100, 0}));
  EXPECT_EQ(Filled(device, {Red({10, 20}), Green({30, 60})}),
            "save\nmove 80 30\nline 40 30\nline 40 10\nline 80 10\nclose\nclip\n"
            "axial 80.5 10.5 80.5 30.5\n" +
                kRedToGreen);
}

// (x, y) becomes (x + y, y): the edges at the sides lean by 45 degrees, and across them it is
// from (0, 0) to (10, -10) that colours change as they do from (0, 0) to (20, 0).
TEST(GradientFill, KeepsItsColorsAlongSlantedEdges) {
  TracedDevice device;
  ASSERT_TRUE(SetWorldTransform(device, {1, 0, 1, 1, 0, 0}));
  EXPECT_EQ(Filled(device, {Red({0, 0}), Green({20, 10})}),
            "save\nmove 20 0\nline 30 10\nline 10 10\nline 0 0\nclose\nclip\n"
            "axial 0.5 0.5 10.5 -9.5\n" +
                kRedToGreen);
}

// The same where a pixel is twice as wide as high: from (0, 0) to (8, -16) on the page.
TEST(GradientFill, KeepsItsColorsAlongSlantedEdgesOnUnevenPixels) {
  TracedDevice device({2, 0, 0, 1, 0, 0});
  ASSERT_TRUE(SetWorldTransform(device, {1, 0, 1, 1, 0, 0}));
  EXPECT_EQ(Filled(device, {Red({0, 0}), Green({20, 10})}),
            "save\nmove 40 0\nline 60 10\nline 20 10\nline 0 0\nclose\nclip\n"
            "axial 1 0.5 9 -15.5\n" +
                kRedToGreen);
}

TEST(GradientFill, FillsNothingInAWorldWithoutArea) {
  TracedDevice device;
  ASSERT_TRUE(SetWorldTransform(device, {1, 1, 1, 1, 0, 0}));
  EXPECT_EQ(Filled(device, {Red({0, 0}), Green({20, 10})}), "");
  EXPECT_EQ(Meshed(device, {Red({0, 0}), Green({9, 0}), Blue({0, 9})}, {0, 1, 2}), "");
}

TEST(GradientFill, FillsNothingBeyondAllNumbers) {
  TracedDevice device;
  ASSERT_TRUE(SetWorldTransform(device, {3e38F, 0, 0, 3e38F, 0, 0}));
  EXPECT_EQ(Filled(device, {Red({1, 1}), Green({9, 9})}), "");
  EXPECT_EQ(Meshed(device, {Red({1, 1}), Green({9, 1}), Blue({1, 9})}, {0, 1, 2}), "");
}

// Triangles.

TEST(GradientFill, DrawsTrianglesAsOneMesh) {
  TracedDevice device;
  EXPECT_EQ(
      Meshed(device, {Red({0, 0}), Green({9, 0}), Blue({0, 9}), Red({9, 9})}, {0, 1, 2, 1, 3, 2}),
      "mesh\n"
      "  vertex 0 0 1 0 0\n  vertex 9 0 0 1 0\n  vertex 0 9 0 0 1\n"
      "  vertex 9 0 0 1 0\n  vertex 9 9 1 0 0\n  vertex 0 9 0 0 1\n");
}

TEST(GradientFill, MapsTriangles) {
  TracedDevice device;
  ASSERT_TRUE(SetWorldTransform(device, {2, 0, 1, 1, 10, 0}));
  EXPECT_EQ(Meshed(device, {Red({0, 0}), Green({9, 0}), Blue({0, 9})}, {0, 1, 2}),
            "mesh\n  vertex 10 0 1 0 0\n  vertex 28 0 0 1 0\n  vertex 19 9 0 0 1\n");
}

TEST(GradientFill, LeavesOutTrianglesThatAreALine) {
  TracedDevice device;
  const StoredVertices vertices = {Red({0, 0}), Green({5, 5}), Blue({9, 9})};
  EXPECT_EQ(Meshed(device, vertices, {0, 1, 2, 0, 0, 1}), "");
}

// In any state.

TEST(GradientFill, FailsForWhatHasTooFewVerticesAndDrawsTheRest) {
  TracedDevice device;
  const StoredVertices vertices = {Red({0, 0}), Green({9, 0}), Blue({0, 9})};
  EXPECT_FALSE(GradientFill(device, vertices.View(), Triangles({0, 1, 3, 2, 1, 0}).View()));
  EXPECT_EQ(device.Take(), "mesh\n  vertex 0 9 0 0 1\n  vertex 9 0 0 1 0\n  vertex 0 0 1 0 0\n");
  EXPECT_FALSE(GradientFill(device, vertices.View(), Rectangles({0xFFFFFFFF, 0, 1, 2}).View(),
                            GRADIENT_FILL_RECT_H));
  EXPECT_EQ(device.Take(),
            Within("0 0 9 9", "axial 0.5 0.5 9.5 0.5\n  stop 0 0 0 1\n  stop 1 0 1 0\n"));
}

TEST(GradientFill, IsCutToTheClip) {
  TracedDevice device;
  ASSERT_TRUE(IntersectClipRect(device, {0, 0, 5, 5}));
  EXPECT_EQ(Meshed(device, {Red({0, 0}), Green({9, 0}), Blue({0, 9})}, {0, 1, 2}),
            "save\nrect 0 0 5 5\neo-clip\n"
            "mesh\n  vertex 0 0 1 0 0\n  vertex 9 0 0 1 0\n  vertex 0 9 0 0 1\n");
}

TEST(GradientFill, TakesNoNoticeOfTheRasterOperation) {
  TracedDevice device;
  SetROP2(device, R2_XORPEN);
  EXPECT_EQ(Filled(device, {Red({0, 0}), Green({9, 9})}),
            Within("0 0 9 9", "axial 0.5 0.5 9.5 0.5\n" + kRedToGreen));
}

}  // namespace
}  // namespace kelvane

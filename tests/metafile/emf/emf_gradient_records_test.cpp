#include "metafile/emf/emf_gradient_records.h"

#include <gtest/gtest.h>

#include "decoded_record.h"

namespace kelvane::test {
namespace {

constexpr std::size_t kFixedSize = 28;  // bounds, two counts, mode
constexpr std::size_t kVertexSize = 16;

Bytes Start(std::uint32_t vertices, std::uint32_t meshes, GradientFillMode mode) {
  return Bytes().Rectangle(1, 2, 3, 4).U32(vertices).U32(meshes).U32(mode);
}

TEST(GradientFillRecord, HasVerticesAndTriangles) {
  const auto record = Decode(DecodeGradientFill, Start(1, 1, GRADIENT_FILL_TRIANGLE)
                                                     .PointL(5, -6)
                                                     .U16(0xFF00)
                                                     .U16(0x1100)
                                                     .U16(0x2200)
                                                     .U16(0x3300)
                                                     .U32(7)
                                                     .U32(8)
                                                     .U32(9));
  EXPECT_EQ(record->bounds, (RectangleL{1, 2, 3, 4}));
  ASSERT_EQ(record->vertices.size(), 1U);
  EXPECT_EQ(record->vertices[0], (TriVertex{{5, -6}, 0xFF00, 0x1100, 0x2200, 0x3300}));
  ASSERT_EQ(record->triangles.size(), 1U);
  EXPECT_EQ(record->triangles[0], (GradientTriangle{7, 8, 9}));
  EXPECT_TRUE(record->rectangles.empty());
}

TEST(GradientFillRecord, HasRectanglesWithOrWithoutThePaddingBehindThem) {
  const auto record =
      Decode(DecodeGradientFill,
             Start(1, 1, GRADIENT_FILL_RECT_V).Zeros(kVertexSize).U32(3).U32(4).Zeros(4),
             kFixedSize + kVertexSize + 8);
  EXPECT_EQ(record->mode, GRADIENT_FILL_RECT_V);
  ASSERT_EQ(record->rectangles.size(), 1U);
  EXPECT_EQ(record->rectangles[0], (GradientRectangle{3, 4}));
  EXPECT_TRUE(record->triangles.empty());
}

TEST(GradientFillRecord, HasNoMeshesOfAnUnknownMode) {
  const auto record =
      Decode(DecodeGradientFill, Start(1, 9, GradientFillMode{3}).Zeros(kVertexSize));
  EXPECT_EQ(record->vertices.size(), 1U);
  EXPECT_TRUE(record->rectangles.empty());
  EXPECT_TRUE(record->triangles.empty());
}

}  // namespace
}  // namespace kelvane::test

#include "classic/objects/graphics_objects.h"

#include <limits>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

TEST(ExtPenObject, ReportsItsColourAndWidthButNoBrushStyle) {
  const ExtPenObject pen(ExtLogPen{.width = 7, .brushStyle = 3, .color = 0x00112233});
  EXPECT_EQ(pen.type, Object::ObjectType::kPen);
  EXPECT_EQ(pen.getColor(), 0x00112233U);
  EXPECT_EQ(pen.getWidth(), 7U);
  EXPECT_EQ(pen.getBrushStyle(), 0U);
}

TEST(BrushObject, ReportsItsColourAndStyle) {
  const BrushObject brush(LogicalBrush{.style = 2, .color = 0x00112233});
  EXPECT_EQ(brush.type, Object::ObjectType::kBrush);
  EXPECT_EQ(brush.getColor(), 0x00112233U);
  EXPECT_EQ(brush.getBrushStyle(), 2U);
}

TEST(DIBBrushObject, HasNoColourAndNoStyle) {
  const DIBBrushObject brush;
  EXPECT_EQ(brush.type, Object::ObjectType::kPatternBrush);
  EXPECT_EQ(brush.getColor(), 0xFFFFFFFFU);
  EXPECT_EQ(brush.getBrushStyle(), 0U);
}

TEST(ExtFontObject, HasNoColourAndNoStyle) {
  const ExtFontObject font{ExtLogFontW()};
  EXPECT_EQ(font.type, Object::ObjectType::kFont);
  EXPECT_EQ(font.getColor(), 0U);
  EXPECT_EQ(font.getBrushStyle(), 0U);
}

TEST(ExtFontObject, ReportsItsHeightWithoutSign) {
  const auto height = [](std::int32_t lfHeight) {
    ExtLogFontW font;
    font.font.lfHeight = lfHeight;
    return ExtFontObject(font).getHeight();
  };
  EXPECT_EQ(height(-12), 12U);
  EXPECT_EQ(height(12), 12U);
  EXPECT_EQ(height(0), 0U);
  EXPECT_EQ(height(std::numeric_limits<std::int32_t>::min()), 2147483648U);
}

}  // namespace
}  // namespace kelvane

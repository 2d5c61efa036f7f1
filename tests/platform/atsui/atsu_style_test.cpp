#include "platform/atsui/atsu_style.h"

#include <gtest/gtest.h>

namespace kelvane {
namespace {

struct Disposer {
  void operator()(ATSUStyle style) const { ATSUDisposeStyle(style); }
};
using Style = std::unique_ptr<ATSUStyleObject, Disposer>;

Style NewStyle() {
  ATSUStyle style = nullptr;
  ATSUCreateStyle(&style);
  return Style(style);
}

template <class T>
OSStatus Set(const Style& style, ATSUAttributeTag tag, T value) {
  const ByteCount size = sizeof value;
  const void* const pointer = &value;
  return ATSUSetAttributes(style.get(), 1, &tag, &size, &pointer);
}

TEST(ATSUStyle, TakesASizeInFixed) {
  const Style style = NewStyle();
  EXPECT_EQ(Set(style, kATSUSizeTag, Fixed{20 << 16}), noErr);
  EXPECT_EQ(style->size, 20 << 16);
}

TEST(ATSUStyle, TakesBoldAndItalic) {
  const Style style = NewStyle();
  Set(style, kATSUQDBoldfaceTag, std::uint32_t{1});
  Set(style, kATSUQDItalicTag, std::uint32_t{1});
  EXPECT_TRUE(style->isBold);
  EXPECT_TRUE(style->isItalic);
}

TEST(ATSUStyle, RefusesAValueOfAnotherSize) {
  const Style style = NewStyle();
  EXPECT_EQ(Set(style, kATSUQDItalicTag, std::uint8_t{1}), kATSUInvalidAttributeSizeErr);
  EXPECT_FALSE(style->isItalic);
}

TEST(ATSUStyle, RefusesAnAttributeItDoesNotHave) {
  EXPECT_EQ(Set(NewStyle(), 258, std::uint32_t{1}), kATSUInvalidAttributeTagErr);
}

TEST(ATSUStyle, TakesTheAttributesBehindOneItRefuses) {
  const Style style = NewStyle();
  const Fixed size = 7 << 16;
  const ATSUAttributeTag tags[] = {258, kATSUSizeTag};
  const ByteCount sizes[] = {4, 4};
  const void* const values[] = {&size, &size};
  EXPECT_EQ(ATSUSetAttributes(style.get(), 2, tags, sizes, values), kATSUInvalidAttributeTagErr);
  EXPECT_EQ(style->size, 7 << 16);
}

TEST(ATSUStyle, ChangesItsFaceWithItsAttributes) {
  const Style style = NewStyle();
  const FontStyle& regular = style->Style(AnyFont);
  Set(style, kATSUQDBoldfaceTag, std::uint32_t{1});
  EXPECT_NE(&style->Style(AnyFont), &regular);
}

}  // namespace
}  // namespace kelvane

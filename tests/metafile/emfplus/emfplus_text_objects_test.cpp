#include "metafile/emfplus/emfplus_text_objects.h"

#include <gtest/gtest.h>

#include "emfplus_decoding.h"
#include "emfplus_objects.h"

namespace kelvane::test {
namespace {

TEST(EmfPlusFont, HasASizeAStyleAndAFamily) {
  const auto font = ReadWhole(
      ReadEmfPlusFont, Bytes().U32(kVersion).F32(12.5F).U32(3).I32(5).U32(0).U32(2).Utf16(u"Ab"));
  EXPECT_EQ(font, (EmfPlusFont{12.5F, EmfPlusUnit::kPoint, kEmfPlusFontBold | kEmfPlusFontUnderline,
                               u"Ab"}));
}

TEST(EmfPlusFont, CannotHaveALongerNameThanThereIs) {
  const Bytes bytes = Bytes().U32(kVersion).F32(12).U32(3).I32(0).U32(0).U32(0xFFFFFFFF).Zeros(64);
  ByteView view(bytes.Data());
  EXPECT_FALSE(ReadEmfPlusFont(view));
}

Bytes Format(std::int32_t tabs, std::int32_t ranges) {
  return Bytes()
      .U32(kVersion)
      .U32(0x1001)
      .U32(0x0409)
      .U32(1)
      .U32(2)
      .U32(3)
      .U32(0x0407)
      .F32(4)
      .I32(2)
      .F32(0.25F)
      .F32(0.5F)
      .F32(1)
      .I32(5)
      .I32(tabs)
      .I32(ranges);
}

TEST(EmfPlusStringFormat, HasAllOfThatWithTabsAndRanges) {
  const auto format =
      ReadWhole(ReadEmfPlusStringFormat, Format(2, 1).F32(100).F32(50).I32(3).I32(4));
  ASSERT_TRUE(format);
  EXPECT_EQ(format->flags, kEmfPlusRightToLeft | kEmfPlusNoWrap);
  EXPECT_EQ(format->language, 0x0409U);
  EXPECT_EQ(format->alignment, EmfPlusStringAlignment::kCenter);
  EXPECT_EQ(format->lineAlignment, EmfPlusStringAlignment::kFar);
  EXPECT_EQ(format->digits, EmfPlusDigitSubstitution::kTraditional);
  EXPECT_EQ(format->digitLanguage, 0x0407U);
  EXPECT_EQ(format->firstTab, 4);
  EXPECT_EQ(format->hotkeys, EmfPlusHotkeyPrefix::kHide);
  EXPECT_EQ(format->leadingMargin, 0.25F);
  EXPECT_EQ(format->trailingMargin, 0.5F);
  EXPECT_EQ(format->tracking, 1);
  EXPECT_EQ(format->trimming, EmfPlusStringTrimming::kEllipsisPath);
  EXPECT_EQ(format->tabs, (std::vector<float>{100, 50}));
  EXPECT_EQ(format->ranges, (std::vector<EmfPlusCharacterRange>{{3, 4}}));
}

TEST(EmfPlusStringFormat, CannotCountMoreThanThereIs) {
  for (const Bytes& bytes : {Format(-1, 0).Zeros(64), Format(0, -1).Zeros(64)}) {
    ByteView view(bytes.Data());
    EXPECT_FALSE(ReadEmfPlusStringFormat(view));
  }
}

}  // namespace
}  // namespace kelvane::test

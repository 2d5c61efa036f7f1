#include "metafile/emfplus/emfplus_record_type.h"

#include <gtest/gtest.h>

namespace kelvane::test {
namespace {

struct Row {
  std::string_view name;
  std::uint32_t ours;
  std::uint32_t type;  // the format's
};
#define ROW(number, name)  \
  Row {                    \
#name, k##name, number \
  }

constexpr Row kRows[] = {
    ROW(0x4001, EmfPlusHeader),
    ROW(0x4002, EmfPlusEndOfFile),
    ROW(0x4003, EmfPlusComment),
    ROW(0x4004, EmfPlusGetDC),
    ROW(0x4005, EmfPlusMultiFormatStart),
    ROW(0x4006, EmfPlusMultiFormatSection),
    ROW(0x4007, EmfPlusMultiFormatEnd),
    ROW(0x4008, EmfPlusObject),
    ROW(0x4009, EmfPlusClear),
    ROW(0x400A, EmfPlusFillRects),
    ROW(0x400B, EmfPlusDrawRects),
    ROW(0x400C, EmfPlusFillPolygon),
    ROW(0x400D, EmfPlusDrawLines),
    ROW(0x400E, EmfPlusFillEllipse),
    ROW(0x400F, EmfPlusDrawEllipse),
    ROW(0x4010, EmfPlusFillPie),
    ROW(0x4011, EmfPlusDrawPie),
    ROW(0x4012, EmfPlusDrawArc),
    ROW(0x4013, EmfPlusFillRegion),
    ROW(0x4014, EmfPlusFillPath),
    ROW(0x4015, EmfPlusDrawPath),
    ROW(0x4016, EmfPlusFillClosedCurve),
    ROW(0x4017, EmfPlusDrawClosedCurve),
    ROW(0x4018, EmfPlusDrawCurve),
    ROW(0x4019, EmfPlusDrawBeziers),
    ROW(0x401A, EmfPlusDrawImage),
    ROW(0x401B, EmfPlusDrawImagePoints),
    ROW(0x401C, EmfPlusDrawString),
    ROW(0x401D, EmfPlusSetRenderingOrigin),
    ROW(0x401E, EmfPlusSetAntiAliasMode),
    ROW(0x401F, EmfPlusSetTextRenderingHint),
    ROW(0x4020, EmfPlusSetTextContrast),
    ROW(0x4021, EmfPlusSetInterpolationMode),
    ROW(0x4022, EmfPlusSetPixelOffsetMode),
    ROW(0x4023, EmfPlusSetCompositingMode),
    ROW(0x4024, EmfPlusSetCompositingQuality),
    ROW(0x4025, EmfPlusSave),
    ROW(0x4026, EmfPlusRestore),
    ROW(0x4027, EmfPlusBeginContainer),
    ROW(0x4028, EmfPlusBeginContainerNoParams),
    ROW(0x4029, EmfPlusEndContainer),
    ROW(0x402A, EmfPlusSetWorldTransform),
    ROW(0x402B, EmfPlusResetWorldTransform),
    ROW(0x402C, EmfPlusMultiplyWorldTransform),
    ROW(0x402D, EmfPlusTranslateWorldTransform),
    ROW(0x402E, EmfPlusScaleWorldTransform),
    ROW(0x402F, EmfPlusRotateWorldTransform),
    ROW(0x4030, EmfPlusSetPageTransform),
    ROW(0x4031, EmfPlusResetClip),
    ROW(0x4032, EmfPlusSetClipRect),
    ROW(0x4033, EmfPlusSetClipPath),
    ROW(0x4034, EmfPlusSetClipRegion),
    ROW(0x4035, EmfPlusOffsetClip),
    ROW(0x4036, EmfPlusDrawDriverString),
    ROW(0x4037, EmfPlusStrokeFillPath),
    ROW(0x4038, EmfPlusSerializableObject),
    ROW(0x4039, EmfPlusSetTSGraphics),
    ROW(0x403A, EmfPlusSetTSClip),
};

TEST(EmfPlusRecordType, HasTheNumbersOfTheFormat) {
  for (const Row& row : kRows)
    EXPECT_EQ(row.ours, row.type) << row.name;
}

TEST(EmfPlusRecordName, NamesEveryRecord) {
  EXPECT_EQ(std::size(kRows), kEmfPlusRecordTypes);
  for (const Row& row : kRows)
    EXPECT_EQ(EmfPlusRecordName(row.type), row.name);
}

TEST(EmfPlusRecordName, HasNoNameForWhatIsNoRecord) {
  for (const std::uint32_t type : {0U, 1U, 0x4000U, 0x403BU, 0x14001U, 0xFFFFFFFFU})
    EXPECT_EQ(EmfPlusRecordName(type), "") << type;
}

}  // namespace
}  // namespace kelvane::test

#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kelvane {
inline namespace metafile {

/// Every record of EMF+ ([MS-EMFPLUS] 2.1.1.1).
enum EmfPlusRecordType : std::uint16_t {
  kEmfPlusHeader = 0x4001,
  kEmfPlusEndOfFile = 0x4002,
  kEmfPlusComment = 0x4003,
  kEmfPlusGetDC = 0x4004,
  kEmfPlusMultiFormatStart = 0x4005,
  kEmfPlusMultiFormatSection = 0x4006,
  kEmfPlusMultiFormatEnd = 0x4007,
  kEmfPlusObject = 0x4008,
  kEmfPlusClear = 0x4009,
  kEmfPlusFillRects = 0x400A,
  kEmfPlusDrawRects = 0x400B,
  kEmfPlusFillPolygon = 0x400C,
  kEmfPlusDrawLines = 0x400D,
  kEmfPlusFillEllipse = 0x400E,
  kEmfPlusDrawEllipse = 0x400F,
  kEmfPlusFillPie = 0x4010,
  kEmfPlusDrawPie = 0x4011,
  kEmfPlusDrawArc = 0x4012,
  kEmfPlusFillRegion = 0x4013,
  kEmfPlusFillPath = 0x4014,
  kEmfPlusDrawPath = 0x4015,
  kEmfPlusFillClosedCurve = 0x4016,
  kEmfPlusDrawClosedCurve = 0x4017,
  kEmfPlusDrawCurve = 0x4018,
  kEmfPlusDrawBeziers = 0x4019,
  kEmfPlusDrawImage = 0x401A,
  kEmfPlusDrawImagePoints = 0x401B,
  kEmfPlusDrawString = 0x401C,
  kEmfPlusSetRenderingOrigin = 0x401D,
  kEmfPlusSetAntiAliasMode = 0x401E,
  kEmfPlusSetTextRenderingHint = 0x401F,
  kEmfPlusSetTextContrast = 0x4020,
  kEmfPlusSetInterpolationMode = 0x4021,
  kEmfPlusSetPixelOffsetMode = 0x4022,
  kEmfPlusSetCompositingMode = 0x4023,
  kEmfPlusSetCompositingQuality = 0x4024,
  kEmfPlusSave = 0x4025,
  kEmfPlusRestore = 0x4026,
  kEmfPlusBeginContainer = 0x4027,
  kEmfPlusBeginContainerNoParams = 0x4028,
  kEmfPlusEndContainer = 0x4029,
  kEmfPlusSetWorldTransform = 0x402A,
  kEmfPlusResetWorldTransform = 0x402B,
  kEmfPlusMultiplyWorldTransform = 0x402C,
  kEmfPlusTranslateWorldTransform = 0x402D,
  kEmfPlusScaleWorldTransform = 0x402E,
  kEmfPlusRotateWorldTransform = 0x402F,
  kEmfPlusSetPageTransform = 0x4030,
  kEmfPlusResetClip = 0x4031,
  kEmfPlusSetClipRect = 0x4032,
  kEmfPlusSetClipPath = 0x4033,
  kEmfPlusSetClipRegion = 0x4034,
  kEmfPlusOffsetClip = 0x4035,
  kEmfPlusDrawDriverString = 0x4036,
  kEmfPlusStrokeFillPath = 0x4037,
  kEmfPlusSerializableObject = 0x4038,
  kEmfPlusSetTSGraphics = 0x4039,
  kEmfPlusSetTSClip = 0x403A
};

inline constexpr std::size_t kEmfPlusRecordTypes = kEmfPlusSetTSClip - kEmfPlusHeader + 1;

/// @param type  of a record; any number.
/// @return its name, as "EmfPlusFillRects"; empty for a type that is none.
std::string_view EmfPlusRecordName(std::uint32_t type);

}  // namespace metafile
}  // namespace kelvane

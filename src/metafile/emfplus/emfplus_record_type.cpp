#include "metafile/emfplus/emfplus_record_type.h"

#include <array>

namespace kelvane {
inline namespace metafile {
namespace {

/// By type, from the first one on.
constexpr std::array<std::string_view, kEmfPlusRecordTypes> kEmfPlusNames = {
    "EmfPlusHeader",
    "EmfPlusEndOfFile",
    "EmfPlusComment",
    "EmfPlusGetDC",
    "EmfPlusMultiFormatStart",
    "EmfPlusMultiFormatSection",
    "EmfPlusMultiFormatEnd",
    "EmfPlusObject",
    "EmfPlusClear",
    "EmfPlusFillRects",
    "EmfPlusDrawRects",
    "EmfPlusFillPolygon",
    "EmfPlusDrawLines",
    "EmfPlusFillEllipse",
    "EmfPlusDrawEllipse",
    "EmfPlusFillPie",
    "EmfPlusDrawPie",
    "EmfPlusDrawArc",
    "EmfPlusFillRegion",
    "EmfPlusFillPath",
    "EmfPlusDrawPath",
    "EmfPlusFillClosedCurve",
    "EmfPlusDrawClosedCurve",
    "EmfPlusDrawCurve",
    "EmfPlusDrawBeziers",
    "EmfPlusDrawImage",
    "EmfPlusDrawImagePoints",
    "EmfPlusDrawString",
    "EmfPlusSetRenderingOrigin",
    "EmfPlusSetAntiAliasMode",
    "EmfPlusSetTextRenderingHint",
    "EmfPlusSetTextContrast",
    "EmfPlusSetInterpolationMode",
    "EmfPlusSetPixelOffsetMode",
    "EmfPlusSetCompositingMode",
    "EmfPlusSetCompositingQuality",
    "EmfPlusSave",
    "EmfPlusRestore",
    "EmfPlusBeginContainer",
    "EmfPlusBeginContainerNoParams",
    "EmfPlusEndContainer",
    "EmfPlusSetWorldTransform",
    "EmfPlusResetWorldTransform",
    "EmfPlusMultiplyWorldTransform",
    "EmfPlusTranslateWorldTransform",
    "EmfPlusScaleWorldTransform",
    "EmfPlusRotateWorldTransform",
    "EmfPlusSetPageTransform",
    "EmfPlusResetClip",
    "EmfPlusSetClipRect",
    "EmfPlusSetClipPath",
    "EmfPlusSetClipRegion",
    "EmfPlusOffsetClip",
    "EmfPlusDrawDriverString",
    "EmfPlusStrokeFillPath",
    "EmfPlusSerializableObject",
    "EmfPlusSetTSGraphics",
    "EmfPlusSetTSClip",
};

}  // namespace

std::string_view EmfPlusRecordName(std::uint32_t type) {
  const std::uint32_t index = type - kEmfPlusHeader;
  return index < kEmfPlusNames.size() ? kEmfPlusNames[index] : std::string_view();
}

}  // namespace metafile
}  // namespace kelvane

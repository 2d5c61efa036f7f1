#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "metafile/emfplus/emfplus_enumerations.h"
#include "metafile/emfplus/emfplus_record.h"
#include "metafile/emfplus/emfplus_types.h"

namespace kelvane {
inline namespace metafile {

// What draws ([MS-EMFPLUS] 2.3.4), by the names of the records. Coordinates are world units, angles
// degrees, clockwise with y downwards.
//
// Decoders return nothing for a record that has less than it says.

/// An index into the table of objects. Files store any number: what is no slot is no object.
using EmfPlusSlot = std::uint32_t;

/// A brush that a record has of its own, or where there is one.
using EmfPlusBrushUse = std::variant<Argb, EmfPlusSlot>;

struct EmfPlusClear {
  Argb color;
};
std::optional<EmfPlusClear> DecodeEmfPlusClear(const EmfPlusRecord& record);

struct EmfPlusFillRects {
  EmfPlusBrushUse brush;
  std::vector<RectF> rectangles;
};
std::optional<EmfPlusFillRects> DecodeEmfPlusFillRects(const EmfPlusRecord& record);

struct EmfPlusDrawRects {
  EmfPlusSlot pen = 0;
  std::vector<RectF> rectangles;
};
std::optional<EmfPlusDrawRects> DecodeEmfPlusDrawRects(const EmfPlusRecord& record);

struct EmfPlusFillPolygon {
  EmfPlusBrushUse brush;
  std::vector<PointF> points;
};
std::optional<EmfPlusFillPolygon> DecodeEmfPlusFillPolygon(const EmfPlusRecord& record);

struct EmfPlusDrawLines {
  EmfPlusSlot pen = 0;
  bool isClosed = false;
  std::vector<PointF> points;
};
std::optional<EmfPlusDrawLines> DecodeEmfPlusDrawLines(const EmfPlusRecord& record);

struct EmfPlusFillEllipse {
  EmfPlusBrushUse brush;
  RectF box;
};
std::optional<EmfPlusFillEllipse> DecodeEmfPlusFillEllipse(const EmfPlusRecord& record);

struct EmfPlusDrawEllipse {
  EmfPlusSlot pen = 0;
  RectF box;
};
std::optional<EmfPlusDrawEllipse> DecodeEmfPlusDrawEllipse(const EmfPlusRecord& record);

struct EmfPlusFillPie {
  EmfPlusBrushUse brush;
  float startAngle = 0;
  float sweepAngle = 0;
  RectF box;  // of the whole ellipse
};
std::optional<EmfPlusFillPie> DecodeEmfPlusFillPie(const EmfPlusRecord& record);

/// EmfPlusDrawPie and EmfPlusDrawArc.
struct EmfPlusDrawArc {
  EmfPlusSlot pen = 0;
  float startAngle = 0;
  float sweepAngle = 0;
  RectF box;  // of the whole ellipse
};
std::optional<EmfPlusDrawArc> DecodeEmfPlusDrawArc(const EmfPlusRecord& record);

struct EmfPlusFillRegion {
  EmfPlusBrushUse brush;
  EmfPlusSlot region = 0;
};
std::optional<EmfPlusFillRegion> DecodeEmfPlusFillRegion(const EmfPlusRecord& record);

struct EmfPlusFillPath {
  EmfPlusBrushUse brush;
  EmfPlusSlot path = 0;
};
std::optional<EmfPlusFillPath> DecodeEmfPlusFillPath(const EmfPlusRecord& record);

struct EmfPlusDrawPath {
  EmfPlusSlot pen = 0;
  EmfPlusSlot path = 0;
};
std::optional<EmfPlusDrawPath> DecodeEmfPlusDrawPath(const EmfPlusRecord& record);

struct EmfPlusFillClosedCurve {
  EmfPlusBrushUse brush;
  float tension = 0;
  bool isWinding = false;  // else even-odd
  std::vector<PointF> points;
};
std::optional<EmfPlusFillClosedCurve> DecodeEmfPlusFillClosedCurve(const EmfPlusRecord& record);

struct EmfPlusDrawClosedCurve {
  EmfPlusSlot pen = 0;
  float tension = 0;
  std::vector<PointF> points;
};
std::optional<EmfPlusDrawClosedCurve> DecodeEmfPlusDrawClosedCurve(const EmfPlusRecord& record);

struct EmfPlusDrawCurve {
  EmfPlusSlot pen = 0;
  float tension = 0;
  std::uint32_t offset = 0;    // of the point where the first segment begins; any number
  std::uint32_t segments = 0;  // any number
  std::vector<PointF> points;
};
std::optional<EmfPlusDrawCurve> DecodeEmfPlusDrawCurve(const EmfPlusRecord& record);

struct EmfPlusDrawBeziers {
  EmfPlusSlot pen = 0;
  std::vector<PointF> points;
};
std::optional<EmfPlusDrawBeziers> DecodeEmfPlusDrawBeziers(const EmfPlusRecord& record);

struct EmfPlusDrawImage {
  EmfPlusSlot image = 0;
  EmfPlusSlot attributes = 0;  // often no slot
  EmfPlusUnit sourceUnit{};
  RectF source;
  RectF destination;
};
std::optional<EmfPlusDrawImage> DecodeEmfPlusDrawImage(const EmfPlusRecord& record);

struct EmfPlusDrawImagePoints {
  EmfPlusSlot image = 0;
  EmfPlusSlot attributes = 0;  // often no slot
  bool hasEffect = false;      // the one that was stored before
  EmfPlusUnit sourceUnit{};
  RectF source;
  std::array<PointF, 3> corners;  // where the upper left, upper right and lower left one go
};
std::optional<EmfPlusDrawImagePoints> DecodeEmfPlusDrawImagePoints(const EmfPlusRecord& record);

struct EmfPlusDrawString {
  EmfPlusSlot font = 0;
  EmfPlusBrushUse brush;
  EmfPlusSlot format = 0;  // often no slot
  RectF layout;            // its width or its height may be 0, for as much as it takes
  std::u16string text;
};
std::optional<EmfPlusDrawString> DecodeEmfPlusDrawString(const EmfPlusRecord& record);

/// How EmfPlusDrawDriverString takes its values ([MS-EMFPLUS] 2.1.2.3).
inline constexpr std::uint32_t kEmfPlusCmapLookup = 1;  // they are characters, not glyphs
inline constexpr std::uint32_t kEmfPlusVerticalGlyphs = 2;
inline constexpr std::uint32_t kEmfPlusRealizedAdvance = 4;  // only the first place counts
inline constexpr std::uint32_t kEmfPlusLimitSubpixel = 8;

struct EmfPlusDrawDriverString {
  EmfPlusSlot font = 0;
  EmfPlusBrushUse brush;
  std::uint32_t options = 0;
  std::u16string values;       // characters, or numbers of glyphs
  std::vector<PointF> places;  // on the baseline: of each value, or with kEmfPlusRealizedAdvance at
                               // least of the first
  std::optional<XForm> matrix;
};
std::optional<EmfPlusDrawDriverString> DecodeEmfPlusDrawDriverString(const EmfPlusRecord& record);

}  // namespace metafile
}  // namespace kelvane

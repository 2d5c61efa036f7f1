#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "classic/reader/geometry_types.h"
#include "support/bytes.h"
#include "support/record_types.h"

namespace kelvane::test {

struct At {
  std::int32_t x;
  std::int32_t y;
};

using Points = std::vector<At>;

/// A COLORREF; each channel from 0 to 255.
constexpr std::uint32_t Rgb(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
  return red | green << 8 | blue << 16;
}

/// Objects that can be selected without having been created.
inline constexpr std::uint32_t kStockWhiteBrush = 0x80000000;
inline constexpr std::uint32_t kStockBlackBrush = 0x80000004;
inline constexpr std::uint32_t kStockNullBrush = 0x80000005;
inline constexpr std::uint32_t kStockWhitePen = 0x80000006;
inline constexpr std::uint32_t kStockBlackPen = 0x80000007;
inline constexpr std::uint32_t kStockNullPen = 0x80000008;

/// Ternary raster operations.
inline constexpr std::uint32_t kSrcCopy = 0x00CC0020;
inline constexpr std::uint32_t kPatCopy = 0x00F00021;

/// Modes and directions, as records store them.
inline constexpr std::int32_t kMapMetric = 2;  // MM_LOMETRIC
inline constexpr std::int32_t kMapAnisotropic = 8;
inline constexpr std::int32_t kMultiplyLeft = 2;  // ModifyWorldTransform
inline constexpr std::int32_t kSetTransform = 4;
inline constexpr std::int32_t kArcCounterClockwise = 1;
inline constexpr std::int32_t kArcClockwise = 2;
inline constexpr std::uint32_t kRegionAnd = 1;  // SelectClipPath
inline constexpr std::uint32_t kRegionCopy = 5;

/// The header of the files below, and where some of its fields stand, in bytes from its start.
inline constexpr std::uint32_t kHeaderSize = 108;
inline constexpr std::size_t kHeaderSizeAt = 4;
inline constexpr std::size_t kFrameAt = 24;
inline constexpr std::size_t kFileSizeAt = 48;
inline constexpr std::size_t kRecordCountAt = 52;
inline constexpr std::size_t kDescriptionLengthAt = 60;
inline constexpr std::size_t kDescriptionOffsetAt = 64;
inline constexpr std::size_t kPaletteLengthAt = 68;

/// Where the string of a text record stands, in bytes from the record's start.
inline constexpr std::uint32_t kTextAt = 76;

/// What a font is created with; everything else is 0.
struct FontAttributes {
  std::u16string face = u"Liberation Sans";
  std::int32_t height = -10;    // logical units
  std::int32_t width = 0;       // logical units
  std::int32_t escapement = 0;  // tenths of a degree
  std::uint8_t italic = 0;
  std::int32_t weight = 400;
  std::int32_t orientation = 0;  // of the letters, tenths of a degree
};

/// Text alignment and background mode, as records store them.
inline constexpr std::uint32_t kTextTop = 0;
inline constexpr std::uint32_t kTextUpdateCP = 1;
inline constexpr std::uint32_t kTextRight = 2;
inline constexpr std::uint32_t kTextCenter = 6;
inline constexpr std::uint32_t kTextBottom = 8;
inline constexpr std::uint32_t kTextBaseline = 24;
inline constexpr std::int32_t kTransparent = 1;
inline constexpr std::int32_t kOpaque = 2;

/// A metafile put together record by record. Coordinates are logical units. Poly records are
/// written with 16-bit points; `wide` asks for the 32-bit ones. The verbs are defined in a file for
/// each family of records.
class Metafile {
 public:
  /// The page is (0, 0, 100, 100) unless Bounds says otherwise.
  Metafile() = default;

  Metafile& Bounds(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom);

  Metafile& Polyline(const Points& points, bool wide = false);
  Metafile& Polygon(const Points& points, bool wide = false);
  Metafile& Polybezier(const Points& points, bool wide = false);
  Metafile& PolylineTo(const Points& points, bool wide = false);
  Metafile& PolybezierTo(const Points& points, bool wide = false);
  Metafile& PolyPolyline(const std::vector<Points>& figures, bool wide = false);
  Metafile& PolyPolygon(const std::vector<Points>& figures, bool wide = false);

  Metafile& MoveTo(std::int32_t x, std::int32_t y);
  Metafile& LineTo(std::int32_t x, std::int32_t y);
  Metafile& Rectangle(const RectangleL& box);
  Metafile& RoundRectangle(const RectangleL& box, std::int32_t cornerWidth,
                           std::int32_t cornerHeight);
  Metafile& Ellipse(const RectangleL& box);
  Metafile& Arc(const RectangleL& box, At start, At end);
  Metafile& ArcTo(const RectangleL& box, At start, At end);
  Metafile& Chord(const RectangleL& box, At start, At end);
  Metafile& Pie(const RectangleL& box, At start, At end);
  Metafile& AngleArc(At centre, std::uint32_t radius, float startDegrees, float sweepDegrees);

  Metafile& SetMapMode(std::int32_t mode);
  Metafile& SetWindowOrg(std::int32_t x, std::int32_t y);
  Metafile& SetWindowExt(std::int32_t cx, std::int32_t cy);
  Metafile& SetViewportOrg(std::int32_t x, std::int32_t y);
  Metafile& SetViewportExt(std::int32_t cx, std::int32_t cy);
  Metafile& SaveDC();
  Metafile& RestoreDC(std::int32_t relativeLevel = -1);
  Metafile& SetWorldTransform(const XForm& transform);
  Metafile& ModifyWorldTransform(const XForm& transform, std::int32_t mode);
  Metafile& SetArcDirection(std::int32_t direction);

  Metafile& BeginPath();
  Metafile& EndPath();
  Metafile& CloseFigure();
  Metafile& FillPath();
  Metafile& StrokePath();
  Metafile& StrokeAndFillPath();
  Metafile& SelectClipPath(std::uint32_t mode);

  /// A solid pen, `width` in logical units, and a solid brush. Table indexes start at 1.
  Metafile& CreatePen(std::uint32_t index, std::int32_t width, std::uint32_t color);
  Metafile& CreateBrush(std::uint32_t index, std::uint32_t color);
  Metafile& SelectObject(std::uint32_t index);
  Metafile& DeleteObject(std::uint32_t index);

  /// A rectangle painted with the brush, or with a source bitmap's bits: a 24-bit header and what
  /// `bits` holds.
  Metafile& BitBlt(At origin, At size, std::uint32_t rop = kPatCopy, const Bytes& bits = {});

  /// A bitmap (header, colours, pixels) with bounds. The source rectangle and the destination, but
  /// for its height, are anything but the bounds.
  Metafile& StretchDibits(const RectangleL& bounds, const Bytes& bitmap,
                          std::uint32_t rop = kSrcCopy, std::int32_t cyDest = 9);

  Metafile& CreateFont(std::uint32_t index, const FontAttributes& font);
  Metafile& SetTextAlign(std::uint32_t align);
  Metafile& SetTextColor(std::uint32_t color);
  Metafile& SetBkColor(std::uint32_t color);
  Metafile& SetBkMode(std::int32_t mode);

  /// UTF-16 text. `spacing` is how far the pen moves after each unit; without any none is stored.
  Metafile& TextOut(At reference, std::u16string_view text,
                    const std::vector<std::uint32_t>& spacing = {},
                    const RectangleL& bounds = {0, 0, -1, -1});
  /// Text of 8-bit units.
  Metafile& TextOutA(At reference, std::string_view text,
                     const std::vector<std::uint32_t>& spacing = {});

  /// Any record: type, size and body. The body is padded to a multiple of four.
  Metafile& Record(std::uint32_t type, const Bytes& body = {});

  /// Any record with a size field of its own, whatever the body holds.
  Metafile& RecordOfSize(std::uint32_t type, std::uint32_t declaredSize, const Bytes& body = {});

  /// The file: the header, the records, EMR_EOF.
  [[nodiscard]] std::vector<unsigned char> Build() const;

  /// The same without the EMR_EOF.
  [[nodiscard]] std::vector<unsigned char> BuildWithoutEnd() const;

 private:
  Metafile& Poly(std::uint32_t type, std::uint32_t type16, const Points& points, bool wide);
  Metafile& PolyPoly(std::uint32_t type, std::uint32_t type16, const std::vector<Points>& figures,
                     bool wide);
  Metafile& ArcLike(std::uint32_t type, const RectangleL& box, At start, At end);
  Metafile& CreateObject(std::uint32_t type, std::uint32_t index, const Bytes& object);

  RectangleL bounds_ = {0, 0, 100, 100};
  Bytes records_;
  std::uint32_t recordCount_ = 0;
  std::uint32_t handleCount_ = 1;  // object table entries, the reserved one included
};

/// @return a file that draws a line from (10, 20) to (30, 40).
std::vector<unsigned char> FileOfALine();

/// @return the file with a description in its header: the program, U+0000, the picture's title,
///         U+0000 twice.
std::vector<unsigned char> WithDescription(std::vector<unsigned char> file,
                                           std::u16string_view description);

/// @return the file with a field of four bytes replaced.
std::vector<unsigned char> WithField(std::vector<unsigned char> file, std::size_t offset,
                                     std::uint32_t value);

}  // namespace kelvane::test

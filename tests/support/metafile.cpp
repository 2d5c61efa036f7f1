#include "support/metafile.h"

#include <algorithm>

#include "classic/reader/integer_arithmetic.h"

namespace kelvane::test {
namespace {

constexpr std::uint32_t kEndSize = 20;

// The device: an edge in pixels is this much in units of 0.01 mm.
constexpr SIZEL kDevicePixels = {1024, 768};
constexpr SIZEL kDeviceMillimeters = {320, 240};

std::int32_t HundredthsOfMillimeters(std::int32_t pixels) {
  return Truncate(100.0 * pixels * kDeviceMillimeters.cx / kDevicePixels.cx);
}

void AppendPoints(Bytes& body, const Points& points, bool wide) {
  for (const At& point : points) {
    if (wide) {
      body.PointL(point.x, point.y);
    } else {
      body.Point(point.x, point.y);
    }
  }
}

Bytes Box(const RectangleL& box) {
  return Bytes().Rectangle(box.left, box.top, box.right, box.bottom);
}

}  // namespace

Metafile& Metafile::Bounds(std::int32_t left, std::int32_t top, std::int32_t right,
                           std::int32_t bottom) {
  bounds_ = {left, top, right, bottom};
  return *this;
}

Metafile& Metafile::Polyline(const Points& points, bool wide) {
  return Poly(EMR_POLYLINE, EMR_POLYLINE16, points, wide);
}

Metafile& Metafile::Polygon(const Points& points, bool wide) {
  return Poly(EMR_POLYGON, EMR_POLYGON16, points, wide);
}

Metafile& Metafile::Polybezier(const Points& points, bool wide) {
  return Poly(EMR_POLYBEZIER, EMR_POLYBEZIER16, points, wide);
}

Metafile& Metafile::PolylineTo(const Points& points, bool wide) {
  return Poly(EMR_POLYLINETO, EMR_POLYLINETO16, points, wide);
}

Metafile& Metafile::PolybezierTo(const Points& points, bool wide) {
  return Poly(EMR_POLYBEZIERTO, EMR_POLYBEZIERTO16, points, wide);
}

Metafile& Metafile::PolyPolyline(const std::vector<Points>& figures, bool wide) {
  return PolyPoly(EMR_POLYPOLYLINE, EMR_POLYPOLYLINE16, figures, wide);
}

Metafile& Metafile::PolyPolygon(const std::vector<Points>& figures, bool wide) {
  return PolyPoly(EMR_POLYPOLYGON, EMR_POLYPOLYGON16, figures, wide);
}

Metafile& Metafile::MoveTo(std::int32_t x, std::int32_t y) {
  return Record(EMR_MOVETOEX, Bytes().PointL(x, y));
}

Metafile& Metafile::LineTo(std::int32_t x, std::int32_t y) {
  return Record(EMR_LINETO, Bytes().PointL(x, y));
}

Metafile& Metafile::Rectangle(const RectangleL& box) {
  return Record(EMR_RECTANGLE, Box(box));
}

Metafile& Metafile::RoundRectangle(const RectangleL& box, std::int32_t cornerWidth,
                                   std::int32_t cornerHeight) {
  return Record(EMR_ROUNDRECT, Box(box).PointL(cornerWidth, cornerHeight));
}

Metafile& Metafile::Ellipse(const RectangleL& box) {
  return Record(EMR_ELLIPSE, Box(box));
}

Metafile& Metafile::Arc(const RectangleL& box, At start, At end) {
  return ArcLike(EMR_ARC, box, start, end);
}

Metafile& Metafile::ArcTo(const RectangleL& box, At start, At end) {
  return ArcLike(EMR_ARCTO, box, start, end);
}

Metafile& Metafile::Chord(const RectangleL& box, At start, At end) {
  return ArcLike(EMR_CHORD, box, start, end);
}

Metafile& Metafile::Pie(const RectangleL& box, At start, At end) {
  return ArcLike(EMR_PIE, box, start, end);
}

Metafile& Metafile::AngleArc(At centre, std::uint32_t radius, float startDegrees,
                             float sweepDegrees) {
  return Record(EMR_ANGLEARC,
                Bytes().PointL(centre.x, centre.y).U32(radius).F32(startDegrees).F32(sweepDegrees));
}

Metafile& Metafile::BitBlt(At origin, At size, std::uint32_t rop, const Bytes& bits) {
  constexpr std::uint32_t kFixedSize = 100;
  const Bytes header = bits.Size() == 0 ? Bytes() : Bytes().BitmapHeader({});
  const auto headerSize = static_cast<std::uint32_t>(header.Size());
  Bytes body;
  body.Rectangle(0, 0, -1, -1).PointL(origin.x, origin.y).PointL(size.x, size.y).U32(rop);
  body.PointL(0, 0).F32(1).F32(0).F32(0).F32(1).F32(0).F32(0).U32(0).U32(0);
  body.U32(kFixedSize).U32(headerSize).U32(kFixedSize + headerSize);
  body.U32(static_cast<std::uint32_t>(bits.Size())).Append(header.Data()).Append(bits.Data());
  return Record(EMR_BITBLT, body);
}

Metafile& Metafile::StretchDibits(const RectangleL& bounds, const Bytes& bitmap, std::uint32_t rop,
                                  std::int32_t cyDest) {
  constexpr std::uint32_t kFixedSize = 80;
  const auto bitmapSize = static_cast<std::uint32_t>(bitmap.Size());
  Bytes body = Box(bounds);
  body.PointL(1000, 2000).PointL(1, 2).PointL(3, 4);
  body.U32(kFixedSize).U32(40).U32(kFixedSize + 40).U32(bitmapSize - 40).U32(0);
  body.U32(rop).PointL(7, cyDest).Append(bitmap.Data());
  return Record(EMR_STRETCHDIBITS, body);
}

Metafile& Metafile::Record(std::uint32_t type, const Bytes& body) {
  Bytes padded = body;
  padded.Zeros((4 - body.Size() % 4) % 4);
  return RecordOfSize(type, static_cast<std::uint32_t>(8 + padded.Size()), padded);
}

Metafile& Metafile::RecordOfSize(std::uint32_t type, std::uint32_t declaredSize,
                                 const Bytes& body) {
  records_.U32(type).U32(declaredSize).Append(body.Data());
  ++recordCount_;
  return *this;
}

std::vector<unsigned char> Metafile::Build() const {
  Bytes file;
  file.Append(BuildWithoutEnd());
  file.U32(EMR_EOF).U32(kEndSize).U32(0).U32(16).U32(kEndSize);
  return file.Data();
}

std::vector<unsigned char> Metafile::BuildWithoutEnd() const {
  constexpr std::uint32_t kSignature = 0x464D4520;  // " EMF"
  constexpr std::uint32_t kVersion = 0x00010000;
  const auto size = static_cast<std::uint32_t>(kHeaderSize + records_.Size() + kEndSize);
  Bytes file;
  file.U32(EMR_HEADER).U32(kHeaderSize);
  file.Append(Box(bounds_).Data());
  for (const std::int32_t edge : {bounds_.left, bounds_.top, bounds_.right, bounds_.bottom}) {
    file.I32(HundredthsOfMillimeters(edge));
  }
  file.U32(kSignature).U32(kVersion).U32(size).U32(recordCount_ + 2).U16(handleCount_).U16(0);
  file.U32(0).U32(0).U32(0);  // description, its offset, palette entries
  file.PointL(kDevicePixels.cx, kDevicePixels.cy);
  file.PointL(kDeviceMillimeters.cx, kDeviceMillimeters.cy);
  file.U32(0).U32(0).U32(0);  // pixel format, its offset, OpenGL
  file.PointL(1000 * kDeviceMillimeters.cx, 1000 * kDeviceMillimeters.cy);
  return file.Append(records_.Data()).Data();
}

Metafile& Metafile::Poly(std::uint32_t type, std::uint32_t type16, const Points& points,
                         bool wide) {
  Bytes body;
  body.Rectangle(0, 0, -1, -1).U32(static_cast<std::uint32_t>(points.size()));
  AppendPoints(body, points, wide);
  return Record(wide ? type : type16, body);
}

Metafile& Metafile::PolyPoly(std::uint32_t type, std::uint32_t type16,
                             const std::vector<Points>& figures, bool wide) {
  std::size_t total = 0;
  for (const Points& figure : figures)
    total += figure.size();
  Bytes body;
  body.Rectangle(0, 0, -1, -1).U32(static_cast<std::uint32_t>(figures.size()));
  body.U32(static_cast<std::uint32_t>(total));
  for (const Points& figure : figures)
    body.U32(static_cast<std::uint32_t>(figure.size()));
  for (const Points& figure : figures)
    AppendPoints(body, figure, wide);
  return Record(wide ? type : type16, body);
}

Metafile& Metafile::ArcLike(std::uint32_t type, const RectangleL& box, At start, At end) {
  return Record(type, Box(box).PointL(start.x, start.y).PointL(end.x, end.y));
}

std::vector<unsigned char> FileOfALine() {
  return Metafile().Polyline({{10, 20}, {30, 40}}).Build();
}

std::vector<unsigned char> WithDescription(std::vector<unsigned char> file,
                                           std::u16string_view description) {
  const std::vector<unsigned char> text = Bytes().Utf16(description).Data();
  const auto units = static_cast<std::uint32_t>(description.size());
  const std::size_t padding = text.size() % 4;
  const auto size = static_cast<std::uint32_t>(kHeaderSize + text.size() + padding);
  auto at = file.insert(file.begin() + kHeaderSize, padding, 0);
  file.insert(at, text.begin(), text.end());
  file = WithField(std::move(file), kHeaderSizeAt, size);
  file = WithField(std::move(file), kDescriptionLengthAt, units);
  return WithField(std::move(file), kDescriptionOffsetAt, kHeaderSize);
}

std::vector<unsigned char> WithField(std::vector<unsigned char> file, std::size_t offset,
                                     std::uint32_t value) {
  std::ranges::copy(Bytes().U32(value).Data(), file.begin() + static_cast<std::ptrdiff_t>(offset));
  return file;
}

}  // namespace kelvane::test

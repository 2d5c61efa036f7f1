#include "metafile/emfplus/emfplus_types.h"

namespace kelvane {
inline namespace metafile {
namespace {

struct IntegerRectangle {
  std::int16_t x = 0;
  std::int16_t y = 0;
  std::int16_t width = 0;
  std::int16_t height = 0;

  constexpr auto Fields() { return std::tie(x, y, width, height); }
};

PointF ToFloats(const PointF& point) {
  return point;
}
PointF ToFloats(const Point16& point) {
  return {static_cast<float>(point.x), static_cast<float>(point.y)};
}
RectF ToFloats(const RectF& rectangle) {
  return rectangle;
}
RectF ToFloats(const IntegerRectangle& rectangle) {
  return {static_cast<float>(rectangle.x), static_cast<float>(rectangle.y),
          static_cast<float>(rectangle.width), static_cast<float>(rectangle.height)};
}

/// @return values that are stored as `Stored`; those that are there.
template <class Value, class Stored>
std::vector<Value> ReadAs(ByteView& bytes, std::size_t count) {
  const ArrayView<Stored> stored = bytes.Array<Stored>(count);
  std::vector<Value> values;
  values.reserve(stored.size());
  for (const Stored& value : stored)
    values.push_back(ToFloats(value));
  return values;
}

/// EmfPlusInteger7 or EmfPlusInteger15 ([MS-EMFPLUS] 2.2.2.21, .22): signed, the top bit of the
/// first byte tells which. Of two bytes the first is the high one.
std::int32_t ReadPackedInteger(ByteView& bytes) {
  constexpr std::int32_t kTwoBytes = 0x80;
  constexpr std::int32_t kSign7 = 0x40;
  constexpr std::int32_t kSign15 = 0x4000;
  const std::int32_t first = bytes.Read<std::uint8_t>();
  if ((first & kTwoBytes) == 0) return (first ^ kSign7) - kSign7;
  const std::int32_t value = ((first & ~kTwoBytes) << 8) | bytes.Read<std::uint8_t>();
  return (value ^ kSign15) - kSign15;
}

std::vector<PointF> ReadRelativePoints(ByteView& bytes, std::size_t count) {
  std::vector<PointF> points;
  PointF point;
  for (std::size_t i = 0; i < count; ++i) {
    point.x += static_cast<float>(ReadPackedInteger(bytes));
    point.y += static_cast<float>(ReadPackedInteger(bytes));
    if (bytes.IsShort()) break;
    points.push_back(point);
  }
  return points;
}

}  // namespace

std::vector<PointF> ReadEmfPlusPoints(ByteView& bytes, std::size_t count, EmfPlusNumbers numbers) {
  switch (numbers) {
    case EmfPlusNumbers::kFloats:
      return ReadAs<PointF, PointF>(bytes, count);
    case EmfPlusNumbers::kIntegers:
      return ReadAs<PointF, Point16>(bytes, count);
    case EmfPlusNumbers::kRelative:
      break;
  }
  return ReadRelativePoints(bytes, count);
}

std::vector<RectF> ReadEmfPlusRectangles(ByteView& bytes, std::size_t count,
                                         EmfPlusNumbers numbers) {
  return numbers == EmfPlusNumbers::kIntegers ? ReadAs<RectF, IntegerRectangle>(bytes, count)
                                              : ReadAs<RectF, RectF>(bytes, count);
}

RectF ReadEmfPlusRectangle(ByteView& bytes, EmfPlusNumbers numbers) {
  return numbers == EmfPlusNumbers::kIntegers ? ToFloats(bytes.Read<IntegerRectangle>())
                                              : bytes.Read<RectF>();
}

bool IsEmfPlusVersion(std::uint32_t version) {
  constexpr std::uint32_t kSignature = 0xDBC01;
  constexpr unsigned kVersionBits = 12;  // which GDI+ it was
  return version >> kVersionBits == kSignature;
}

void ReadEmfPlusVersion(ByteView& bytes) {
  if (!IsEmfPlusVersion(bytes.Read<std::uint32_t>())) bytes.Fail();
}

std::u16string ReadEmfPlusText(ByteView& bytes, std::size_t length) {
  const ArrayView<char16_t> units = bytes.Array<char16_t>(length);
  return {units.begin(), units.end()};
}

}  // namespace metafile
}  // namespace kelvane

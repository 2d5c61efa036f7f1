#include "metafile/emfplus/emfplus_drawing_records.h"

#include <algorithm>

namespace kelvane {
inline namespace metafile {
namespace {

constexpr std::uint16_t kBrushIsColor = 0x8000;
constexpr std::uint16_t kCompressed = 0x4000;  // coordinates are integers
constexpr std::uint16_t kCloses = 0x2000;      // of lines
constexpr std::uint16_t kWinds = 0x2000;       // of a filled curve
constexpr std::uint16_t kHasEffect = 0x2000;   // of an image
constexpr std::uint16_t kIsRelative = 0x0800;  // points are

bool Has(const EmfPlusRecord& record, std::uint16_t flag) {
  return (record.flags & flag) != 0;
}

/// The object that the flags name.
EmfPlusSlot SlotOf(const EmfPlusRecord& record) {
  constexpr std::uint16_t kSlotMask = 0x00FF;
  return record.flags & kSlotMask;
}

EmfPlusBrushUse ReadBrushUse(ByteView& data, const EmfPlusRecord& record) {
  if (Has(record, kBrushIsColor)) return data.Read<Argb>();
  return data.Read<EmfPlusSlot>();
}

EmfPlusNumbers NumbersOf(const EmfPlusRecord& record) {
  return Has(record, kCompressed) ? EmfPlusNumbers::kIntegers : EmfPlusNumbers::kFloats;
}

RectF ReadBox(ByteView& data, const EmfPlusRecord& record) {
  return ReadEmfPlusRectangle(data, NumbersOf(record));
}

/// A count, and so many rectangles.
std::vector<RectF> ReadBoxes(ByteView& data, const EmfPlusRecord& record) {
  return ReadEmfPlusRectangles(data, data.Read<std::uint32_t>(), NumbersOf(record));
}

/// A count, and so many points.
std::vector<PointF> ReadPoints(ByteView& data, const EmfPlusRecord& record) {
  const EmfPlusNumbers numbers =
      Has(record, kIsRelative) ? EmfPlusNumbers::kRelative : NumbersOf(record);
  return ReadEmfPlusPoints(data, data.Read<std::uint32_t>(), numbers);
}

/// Some writers store no place but the first when there is no need for more.
std::size_t StoredPlaces(const ByteView& data, std::uint32_t options, std::size_t values,
                         bool hasMatrix) {
  const bool firstWillDo = (options & kEmfPlusRealizedAdvance) != 0 && values != 0;
  const std::size_t matrixSize = hasMatrix ? kStoredSize<XForm> : 0;
  const bool areAllThere = data.Remaining() >= values * kStoredSize<PointF> + matrixSize;
  return firstWillDo && !areAllThere ? 1 : values;
}

}  // namespace

std::optional<EmfPlusClear> DecodeEmfPlusClear(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusClear>(data, {data.Read<Argb>()});
}

std::optional<EmfPlusFillRects> DecodeEmfPlusFillRects(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusFillRects>(data, {ReadBrushUse(data, record), ReadBoxes(data, record)});
}

std::optional<EmfPlusDrawRects> DecodeEmfPlusDrawRects(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusDrawRects>(data, {SlotOf(record), ReadBoxes(data, record)});
}

std::optional<EmfPlusFillPolygon> DecodeEmfPlusFillPolygon(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusFillPolygon>(data,
                                         {ReadBrushUse(data, record), ReadPoints(data, record)});
}

std::optional<EmfPlusDrawLines> DecodeEmfPlusDrawLines(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusDrawLines>(
      data, {SlotOf(record), Has(record, kCloses), ReadPoints(data, record)});
}

std::optional<EmfPlusFillEllipse> DecodeEmfPlusFillEllipse(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusFillEllipse>(data, {ReadBrushUse(data, record), ReadBox(data, record)});
}

std::optional<EmfPlusDrawEllipse> DecodeEmfPlusDrawEllipse(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusDrawEllipse>(data, {SlotOf(record), ReadBox(data, record)});
}

std::optional<EmfPlusFillPie> DecodeEmfPlusFillPie(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusFillPie>(data, {ReadBrushUse(data, record), data.Read<float>(),
                                            data.Read<float>(), ReadBox(data, record)});
}

std::optional<EmfPlusDrawArc> DecodeEmfPlusDrawArc(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusDrawArc>(
      data, {SlotOf(record), data.Read<float>(), data.Read<float>(), ReadBox(data, record)});
}

std::optional<EmfPlusFillRegion> DecodeEmfPlusFillRegion(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusFillRegion>(data, {ReadBrushUse(data, record), SlotOf(record)});
}

std::optional<EmfPlusFillPath> DecodeEmfPlusFillPath(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusFillPath>(data, {ReadBrushUse(data, record), SlotOf(record)});
}

std::optional<EmfPlusDrawPath> DecodeEmfPlusDrawPath(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusDrawPath>(data, {data.Read<EmfPlusSlot>(), SlotOf(record)});
}

std::optional<EmfPlusFillClosedCurve> DecodeEmfPlusFillClosedCurve(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusFillClosedCurve>(data, {ReadBrushUse(data, record), data.Read<float>(),
                                                    Has(record, kWinds), ReadPoints(data, record)});
}

std::optional<EmfPlusDrawClosedCurve> DecodeEmfPlusDrawClosedCurve(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusDrawClosedCurve>(
      data, {SlotOf(record), data.Read<float>(), ReadPoints(data, record)});
}

/// Its points are never relative.
std::optional<EmfPlusDrawCurve> DecodeEmfPlusDrawCurve(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusDrawCurve>(
      data,
      {SlotOf(record), data.Read<float>(), data.Read<std::uint32_t>(), data.Read<std::uint32_t>(),
       ReadEmfPlusPoints(data, data.Read<std::uint32_t>(), NumbersOf(record))});
}

std::optional<EmfPlusDrawBeziers> DecodeEmfPlusDrawBeziers(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusDrawBeziers>(data, {SlotOf(record), ReadPoints(data, record)});
}

std::optional<EmfPlusDrawImage> DecodeEmfPlusDrawImage(const EmfPlusRecord& record) {
  ByteView data = record.data;
  return UnlessShort<EmfPlusDrawImage>(
      data, {SlotOf(record), data.Read<EmfPlusSlot>(), data.Read<EmfPlusUnit>(), data.Read<RectF>(),
             ReadBox(data, record)});
}

std::optional<EmfPlusDrawImagePoints> DecodeEmfPlusDrawImagePoints(const EmfPlusRecord& record) {
  ByteView data = record.data;
  EmfPlusDrawImagePoints image = {SlotOf(record),          data.Read<EmfPlusSlot>(),
                                  Has(record, kHasEffect), data.Read<EmfPlusUnit>(),
                                  data.Read<RectF>(),      {}};
  const std::vector<PointF> points = ReadPoints(data, record);
  if (points.size() != image.corners.size()) return std::nullopt;
  std::copy(points.begin(), points.end(), image.corners.begin());
  return UnlessShort(data, image);
}

std::optional<EmfPlusDrawString> DecodeEmfPlusDrawString(const EmfPlusRecord& record) {
  ByteView data = record.data;
  EmfPlusDrawString string = {
      SlotOf(record), ReadBrushUse(data, record), data.Read<EmfPlusSlot>(), {}, {}};
  const auto length = data.Read<std::uint32_t>();
  string.layout = data.Read<RectF>();
  string.text = ReadEmfPlusText(data, length);
  return UnlessShort(data, std::move(string));
}

std::optional<EmfPlusDrawDriverString> DecodeEmfPlusDrawDriverString(const EmfPlusRecord& record) {
  ByteView data = record.data;
  EmfPlusDrawDriverString string = {
      SlotOf(record), ReadBrushUse(data, record), data.Read<std::uint32_t>(), {}, {}, {}};
  const bool hasMatrix = data.Read<std::uint32_t>() != 0;
  const auto count = data.Read<std::uint32_t>();
  string.values = ReadEmfPlusText(data, count);
  string.places =
      ReadEmfPlusPoints(data, StoredPlaces(data, string.options, string.values.size(), hasMatrix),
                        EmfPlusNumbers::kFloats);
  if (hasMatrix) string.matrix = data.Read<XForm>();
  return UnlessShort(data, std::move(string));
}

}  // namespace metafile
}  // namespace kelvane

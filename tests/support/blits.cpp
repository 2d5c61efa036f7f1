#include "support/blits.h"

namespace kelvane::test {
namespace {

/// Where the parts of a bitmap stand, in bytes from the start of their record.
struct Place {
  std::uint32_t header = 0;
  std::uint32_t headerSize = 0;
  std::uint32_t pixels = 0;
  std::uint32_t pixelsSize = 0;

  [[nodiscard]] std::uint32_t End() const { return pixels + pixelsSize; }
};

Place PlaceAt(std::uint32_t offset, const BitmapParts& bitmap) {
  const auto headerSize = static_cast<std::uint32_t>(bitmap.header.Size());
  return {offset, headerSize, offset + headerSize,
          static_cast<std::uint32_t>(bitmap.pixels.Size())};
}

/// Around the end of the numbers, for places that are out of this world.
constexpr std::int32_t Sum(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

class FieldWriter {
 public:
  FieldWriter(const Blit& blit, const Place& bitmap, const Place& mask)
      : blit_(blit), bitmap_(bitmap), mask_(mask) {
    fields_.Rectangle(0, 0, -1, -1);
  }

  Bytes Of(std::uint32_t type) {
    switch (type) {
      case kBitBlt:
        return Destination().Operation().Source().Taken();
      case kMaskBlt:
        return Destination().Operation().Source().Mask().Taken();
      case kPlgBlt:
        return Corners().Pair(blit_.source).Pair(blit_.sourceSize).Rest().Mask().Taken();
      case kSetDibitsToDevice:
        return Pair(blit_.destination).Pair(blit_.source).Pair(blit_.size).Bitmap().Scans().Taken();
      case kStretchDibits:
        Pair(blit_.destination).Pair(blit_.source).Pair(blit_.sourceSize).Bitmap();
        return Number(blit_.usage).Operation().Pair(blit_.size).Taken();
      default:  // with a size of the source
        return Destination().Operation().Source().Pair(blit_.sourceSize).Taken();
    }
  }

 private:
  FieldWriter& Number(std::uint32_t value) {
    fields_.U32(value);
    return *this;
  }
  FieldWriter& Pair(At at) {
    fields_.PointL(at.x, at.y);
    return *this;
  }
  FieldWriter& Destination() { return Pair(blit_.destination).Pair(blit_.size); }
  FieldWriter& Operation() { return Number(blit_.operation); }
  FieldWriter& Corners() {
    const auto [x, y] = blit_.destination;
    return Pair({x, y}).Pair({Sum(x, blit_.size.x), y}).Pair({x, Sum(y, blit_.size.y)});
  }
  FieldWriter& PlaceOf(const Place& place) {
    return Number(place.header)
        .Number(place.headerSize)
        .Number(place.pixels)
        .Number(place.pixelsSize);
  }
  FieldWriter& Bitmap() { return PlaceOf(bitmap_); }
  FieldWriter& Source() { return Pair(blit_.source).Rest(); }
  FieldWriter& Rest() {
    const XForm& t = blit_.transform;
    for (const float number : {t.eM11, t.eM12, t.eM21, t.eM22, t.eDx, t.eDy})
      fields_.F32(number);
    return Number(Rgb(255, 255, 255)).Number(blit_.usage).Bitmap();
  }
  FieldWriter& Mask() { return Pair(blit_.maskSource).Number(0).PlaceOf(mask_); }
  FieldWriter& Scans() { return Number(blit_.usage).Number(blit_.startScan).Number(blit_.scans); }
  Bytes Taken() { return fields_; }

  const Blit& blit_;
  Place bitmap_;
  Place mask_;
  Bytes fields_;
};

}  // namespace

Metafile& AddBlit(Metafile& metafile, std::uint32_t type, const Blit& blit) {
  constexpr std::uint32_t kTypeAndSize = 8;
  const auto fields = static_cast<std::uint32_t>(FieldWriter(blit, {}, {}).Of(type).Size());
  const Place bitmap = PlaceAt(kTypeAndSize + fields, blit.bitmap);
  const Place mask = PlaceAt(bitmap.End(), blit.mask);
  Bytes body = FieldWriter(blit, bitmap, mask).Of(type);
  for (const Bytes* part :
       {&blit.bitmap.header, &blit.bitmap.pixels, &blit.mask.header, &blit.mask.pixels})
    body.Append(part->Data());
  return metafile.Record(type, body);
}

}  // namespace kelvane::test

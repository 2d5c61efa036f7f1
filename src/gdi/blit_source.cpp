#include "gdi/blit_source.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>
#include <vector>

#include "gdi/blit_images.h"
#include "gdi/exactly.h"

namespace kelvane {
namespace {

/// Bytes of a JPEG file once it is decoded, but for those that its data may well stand for.
std::uint64_t DecodedSizeOfJpeg(const Dib& dib) {
  constexpr std::uint64_t kUsual = 48;  // times the file, and more than a photo comes to
  const std::uint64_t size = 3 * std::uint64_t{dib.Width()} * dib.Height();
  return size - std::min(size, kUsual * dib.File().size());
}

/// Bytes that a bitmap takes once it is decoded; none when it goes out as it is.
std::uint64_t DecodedSize(const Dib& dib, bool keepsJpeg) {
  const std::uint64_t pixels = std::uint64_t{dib.Width()} * dib.Height();
  switch (dib.Kind()) {
    case Dib::Content::kIndexed:
      return pixels;
    case Dib::Content::kDirect:
    case Dib::Content::kPng:
      return 3 * pixels;
    case Dib::Content::kJpeg:
      return keepsJpeg ? 0 : DecodedSizeOfJpeg(dib);
  }
  return 0;
}

bool IsUnscaled(const TransformD& t) {
  constexpr double kHair = 1.0 / 256;
  return std::abs(std::abs(t.m11) - 1) < kHair && std::abs(std::abs(t.m22) - 1) < kHair &&
         t.m12 == 0 && t.m21 == 0;
}

TransformD ExactTransform(const XForm& t) {
  return {t.eM11, t.eM12, t.eM21, t.eM22, t.eDx, t.eDy};
}

}  // namespace

std::optional<Dib> ReadBitmap(DeviceContext& device, const DibBytes& bytes, BitmapUse use,
                              std::optional<std::uint32_t> rows) {
  std::vector<DibColor> palette;
  if (bytes.usage != DIB_RGB_COLORS) palette = ColorsOf(*device.state.palette);
  auto dib = Dib::Read(bytes, palette, rows);
  if (!dib) {
    device.shortfalls.Add(Shortfall::kUnreadableBitmap);
    return std::nullopt;
  }
  if (device.canvas == nullptr) return dib;
  const bool keepsJpeg =
      use == BitmapUse::kCopied && device.canvas->Surface().Capabilities().holdsJpeg;
  if (!device.canvas->AffordPixels(DecodedSize(*dib, keepsJpeg))) {
    device.shortfalls.Add(Shortfall::kBitmapTooLarge);
    return std::nullopt;
  }
  return dib;
}

TransformD Destination(const DeviceContext& device, PointL corner, SizeL size) {
  const PointD from = Exactly(corner);
  return TransformD{static_cast<double>(size.cx), 0,      0,
                    static_cast<double>(size.cy), from.x, from.y}
      .Then(device.state.mapping.ToDevice());
}

std::optional<Blit> BlitFrom(DeviceContext& device, const SourceBitmap& source,
                             const TransformD& unitToDevice) {
  if (device.canvas == nullptr) return std::nullopt;
  auto dib = ReadBitmap(device, source.dib, BitmapUse::kChanged);
  if (!dib) return std::nullopt;
  const PointD from = Exactly(source.position);
  const RectangleD rectangle = {from.x, from.y, from.x + source.size.cx, from.y + source.size.cy};
  auto blit = PlaceBlit(*std::move(dib), rectangle, ExactTransform(source.transform), unitToDevice);
  if (!blit) return std::nullopt;
  FinishBlit(device, *blit);
  return blit;
}

void FinishBlit(const DeviceContext& device, Blit& blit) {
  blit.isSmooth = device.state.stretchMode == STRETCH_HALFTONE;
  if (!blit.dib.IsRunLengthEncoded() || !IsUnscaled(blit.toDevice)) return;
  std::vector<std::uint8_t> isSet = DecodeIndexes(blit.dib, blit.part).isSet;
  if (!isSet.empty()) {
    blit.shown = std::make_shared<const std::vector<std::uint8_t>>(std::move(isSet));
  }
}

ShownPixels SetPixels(DeviceContext& device, const MaskBitmap& mask, const Blit& blit,
                      PointL source) {
  const auto dib = ReadBitmap(device, mask.dib, BitmapUse::kChanged);
  if (!dib || dib->Kind() != Dib::Content::kIndexed || dib->BitCount() != 1) return nullptr;
  // Where the blit's part begins in the mask.
  const auto left = static_cast<std::int64_t>(blit.part.left) - source.x + mask.position.x;
  const auto top = static_cast<std::int64_t>(blit.part.top) - source.y + mask.position.y;
  const auto right = std::min(left + static_cast<std::int64_t>(blit.part.width),
                              static_cast<std::int64_t>(dib->Width()));
  const auto bottom = std::min(top + static_cast<std::int64_t>(blit.part.height),
                               static_cast<std::int64_t>(dib->Height()));
  std::vector<std::uint8_t> shown(blit.part.width * blit.part.height);
  const auto firstX = std::max<std::int64_t>(left, 0);
  const auto firstY = std::max<std::int64_t>(top, 0);
  if (firstX < right && firstY < bottom) {
    const PixelRectangle part = {static_cast<std::size_t>(firstX), static_cast<std::size_t>(firstY),
                                 static_cast<std::size_t>(right - firstX),
                                 static_cast<std::size_t>(bottom - firstY)};
    const std::vector<std::uint8_t> bits = DecodeIndexes(*dib, part).indexes;
    for (std::size_t y = 0; y < part.height; ++y) {
      const std::size_t row = static_cast<std::size_t>(firstY - top) + y;
      std::copy_n(bits.data() + y * part.width, part.width,
                  shown.data() + row * blit.part.width + static_cast<std::size_t>(firstX - left));
    }
  }
  return std::make_shared<const std::vector<std::uint8_t>>(std::move(shown));
}

}  // namespace kelvane

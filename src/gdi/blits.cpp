#include "gdi/blits.h"

#include <algorithm>
#include <utility>

#include "gdi/blit_images.h"
#include "gdi/blit_painting.h"
#include "gdi/blit_source.h"
#include "gdi/exactly.h"
#include "gdi/objects.h"
#include "gdi/page_color.h"
#include "gdi/painting.h"
#include "gdi/raster_operation.h"
#include "gdi/shapes.h"

namespace kelvane {
namespace {

/// Operations whose blits may be part of one picture with others.
bool MayBelongToOthers(TernaryRasterOperation operation) {
  constexpr std::array kOperations = {SRCCOPY, SRCAND, SRCPAINT, SRCINVERT};
  return std::ranges::any_of(kOperations, [&](auto other) { return AreAlike(other, operation); });
}

BrushPaint SelectedPaint(const DeviceContext& device) {
  return ResolveBrush(device, *device.state.brush);
}

void Draw(DeviceContext& device, Blit blit, TernaryRasterOperation operation) {
  if (MayBelongToOthers(operation)) return PostBlit(device, std::move(blit), operation);
  DrawPendingBlits(device);
  if (BringClip(device)) PaintBlit(device, blit, operation, SelectedPaint(device));
}

bool IsNothing(TernaryRasterOperation operation) {
  return WithoutSource(operation) == R2_NOP;
}

/// @return the pixels that the other ones leave.
ShownPixels TheOther(const std::vector<std::uint8_t>& shown) {
  std::vector<std::uint8_t> other(shown);
  for (std::uint8_t& pixel : other)
    pixel ^= 1;
  return std::make_shared<const std::vector<std::uint8_t>>(std::move(other));
}

/// A blit of MaskBlt under one of its two operations.
void DrawShown(DeviceContext& device, const Blit& blit, TernaryRasterOperation operation,
               bool hasSource) {
  const auto withoutSource = WithoutSource(operation);
  const BrushPaint paint = SelectedPaint(device);
  if (withoutSource) return FillBlit(device, blit, *withoutSource, paint);
  if (hasSource) PaintBlit(device, blit, operation, paint);
}

/// Without a bitmap the mask's own pixels are those of the blit.
SourceBitmap MaskAsSource(const SourceBitmap& source, const MaskBitmap& mask) {
  return {mask.dib, mask.position, source.size, source.transform};
}

}  // namespace

void StretchBlt(DeviceContext& device, PointL corner, SizeL size, const SourceBitmap& source,
                TernaryRasterOperation operation) {
  if (IsNothing(operation)) return;
  const auto withoutSource = WithoutSource(operation);
  if (withoutSource) {
    DrawPendingBlits(device);
    return PatBlt(device, corner, size, *withoutSource);
  }
  if (source.dib.header.empty()) return;
  auto blit = BlitFrom(device, source, Destination(device, corner, size));
  if (blit) Draw(device, *std::move(blit), operation);
}

void BitBlt(DeviceContext& device, PointL corner, SizeL size, SourceBitmap source,
            TernaryRasterOperation operation) {
  source.size = size;
  StretchBlt(device, corner, size, source, operation);
}

void StretchDIBits(DeviceContext& device, PointL corner, SizeL size, PointL source,
                   SizeL sourceSize, const DibBytes& dib, TernaryRasterOperation operation) {
  if (WithoutSource(operation)) return StretchBlt(device, corner, size, {}, operation);
  if (device.canvas == nullptr) return;
  const bool isCopied = AreAlike(operation, SRCCOPY);
  auto bitmap = ReadBitmap(device, dib, isCopied ? BitmapUse::kCopied : BitmapUse::kChanged);
  if (!bitmap) return;
  const double top = bitmap->IsTopDown()
                         ? source.y
                         : static_cast<double>(bitmap->Height()) - source.y - sourceSize.cy;
  const double left = source.x;
  auto blit = PlaceBlit(*std::move(bitmap), {left, top, left + sourceSize.cx, top + sourceSize.cy},
                        {}, Destination(device, corner, size));
  if (!blit) return;
  FinishBlit(device, *blit);
  Draw(device, *std::move(blit), operation);
}

void SetDIBitsToDevice(DeviceContext& device, PointL corner, SizeL size, PointL source,
                       const ScanLines& lines, const DibBytes& dib) {
  if (device.canvas == nullptr) return;
  auto bitmap = ReadBitmap(device, dib, BitmapUse::kCopied, lines.count);
  if (!bitmap) return;
  const PointD place = device.state.mapping.ToDevice().Map(Exactly(corner));
  // Rows from the picture's lower edge, counted from the upper edge of those that are there.
  const double width = size.cx;
  const double height = size.cy;
  const double left = source.x;
  const double top = static_cast<double>(lines.first) + lines.count - source.y - height;
  auto blit = PlaceBlit(*std::move(bitmap), {left, top, left + width, top + height}, {},
                        {width, 0, 0, height, place.x, place.y});
  if (!blit) return;
  FinishBlit(device, *blit);
  blit->isSmooth = false;
  Draw(device, *std::move(blit), SRCCOPY);
}

void MaskBlt(DeviceContext& device, PointL corner, SizeL size, SourceBitmap source,
             const MaskBitmap& mask, std::uint32_t operations) {
  const auto foreground = static_cast<TernaryRasterOperation>(operations & 0xFF0000);
  const auto background = static_cast<TernaryRasterOperation>(operations >> 8 & 0xFF0000);
  source.size = size;
  if (mask.dib.header.empty()) return StretchBlt(device, corner, size, source, foreground);
  DrawPendingBlits(device);
  const bool hasSource = !source.dib.header.empty();
  const SourceBitmap pixels = hasSource ? source : MaskAsSource(source, mask);
  auto blit = BlitFrom(device, pixels, Destination(device, corner, size));
  if (!blit || !BringClip(device)) return;
  const ShownPixels set = SetPixels(device, mask, *blit, pixels.position);
  if (set == nullptr) return device.shortfalls.Add(Shortfall::kUnreadableBitmap);
  blit->shown = set;
  DrawShown(device, *blit, foreground, hasSource);
  blit->shown = TheOther(*set);
  DrawShown(device, *blit, background, hasSource);
}

void PlgBlt(DeviceContext& device, const std::array<PointL, 3>& corners, const SourceBitmap& source,
            const MaskBitmap& mask) {
  const PointD origin = Exactly(corners[0]);
  const PointD right = Exactly(corners[1]);
  const PointD down = Exactly(corners[2]);
  const TransformD unit = {right.x - origin.x, right.y - origin.y, down.x - origin.x,
                           down.y - origin.y,  origin.x,           origin.y};
  DrawPendingBlits(device);
  auto blit = BlitFrom(device, source, unit.Then(device.state.mapping.ToDevice()));
  if (!blit || !BringClip(device)) return;
  if (!mask.dib.header.empty()) {
    blit->shown = SetPixels(device, mask, *blit, source.position);
    if (blit->shown == nullptr) return device.shortfalls.Add(Shortfall::kUnreadableBitmap);
  }
  PaintBlit(device, *blit, SRCCOPY, {});
}

void TransparentBlt(DeviceContext& device, PointL corner, SizeL size, const SourceBitmap& source,
                    ColorRef transparent) {
  DrawPendingBlits(device);
  auto blit = BlitFrom(device, source, Destination(device, corner, size));
  if (!blit || !BringClip(device)) return;
  auto shown = PixelsBut(*blit, ResolveColor(device, transparent));
  if (!shown) return device.shortfalls.Add(Shortfall::kUnreadableBitmap);
  if (std::ranges::find(*shown, 0) != shown->end()) {
    blit->shown = std::make_shared<const std::vector<std::uint8_t>>(*std::move(shown));
    blit->isSmooth = false;  // the colour that is left out would run into the others
  }
  PaintBlit(device, *blit, SRCCOPY, {});
}

bool AlphaBlend(DeviceContext& device, PointL corner, SizeL size, const SourceBitmap& source,
                const BlendFunction& blend) {
  constexpr std::uint8_t kSourceAlpha = 1;
  const auto isNegative = [](SizeL s) { return s.cx < 0 || s.cy < 0; };
  if (isNegative(size) || isNegative(source.size)) return false;
  DrawPendingBlits(device);
  const auto blit = BlitFrom(device, source, Destination(device, corner, size));
  if (!blit || !BringClip(device)) return true;
  PaintTranslucent(device, *blit, ChannelOnPage(blend.sourceConstantAlpha),
                   (blend.alphaFormat & kSourceAlpha) != 0);
  return true;
}

}  // namespace kelvane

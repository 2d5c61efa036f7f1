#include "gdi/pending_blits.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <utility>

#include "gdi/blit_images.h"
#include "gdi/blit_painting.h"
#include "gdi/blit_strips.h"
#include "gdi/device_context.h"
#include "gdi/painting.h"
#include "gdi/raster_operation.h"

namespace kelvane {
namespace {

/// A row of blits on the same place that shows an image where a mask of black and white lets it.
struct MaskedPicture {
  std::array<TernaryRasterOperation, 3> operations;
  std::size_t count;
  std::size_t mask;   // which of them
  std::size_t image;  // which of them
  bool showsWhite;    // where the mask is white, else where it is black

  /// Outside of the mask the image has this colour, which leaves what is there as it is. Without it
  /// drawing the image twice does so.
  std::optional<std::uint8_t> outside;
};

constexpr std::array<MaskedPicture, 4> kMaskedPictures = {{
    {{SRCPAINT, SRCAND, {}}, 2, 0, 1, true, 255},
    {{SRCAND, SRCPAINT, {}}, 2, 0, 1, false, 0},
    {{SRCAND, SRCINVERT, {}}, 2, 0, 1, false, 0},
    {{SRCINVERT, SRCAND, SRCINVERT}, 3, 1, 0, false, std::nullopt},
}};

bool Begins(const MaskedPicture& picture, std::span<const PendingBlit> blits,
            TernaryRasterOperation next) {
  if (blits.size() >= picture.count || !AreAlike(picture.operations[blits.size()], next))
    return false;
  for (std::size_t i = 0; i < blits.size(); ++i) {
    if (!AreAlike(picture.operations[i], blits[i].operation)) return false;
  }
  return true;
}

bool LieOnTheSamePlace(const Blit& a, const Blit& b) {
  constexpr double kOnePixel = 1;
  const TransformD one = UnitToDevice(a);
  const TransformD other = UnitToDevice(b);
  const auto areClose = [&](PointD corner) {
    const PointD p = one.Map(corner);
    const PointD q = other.Map(corner);
    return std::abs(p.x - q.x) <= kOnePixel && std::abs(p.y - q.y) <= kOnePixel;
  };
  return areClose({0, 0}) && areClose({1, 0}) && areClose({0, 1});
}

bool GoesWith(const std::vector<PendingBlit>& blits, const Blit& next,
              TernaryRasterOperation operation) {
  if (AreAlike(operation, SRCCOPY)) {
    return AreAlike(blits.back().operation, SRCCOPY) && GoesOn(blits, next);
  }
  return LieOnTheSamePlace(blits.back().blit, next) &&
         std::ranges::any_of(kMaskedPictures, [&](const MaskedPicture& picture) {
           return Begins(picture, blits, operation);
         });
}

const MaskedPicture* WholePicture(std::span<const PendingBlit> blits) {
  const auto found = std::ranges::find_if(kMaskedPictures, [&](const MaskedPicture& picture) {
    return picture.count == blits.size() &&
           Begins(picture, blits.first(blits.size() - 1), blits.back().operation);
  });
  return found == kMaskedPictures.end() ? nullptr : &*found;
}

bool HasOutside(const Blit& image, const std::vector<std::uint8_t>& shown, std::uint8_t channel) {
  const auto rgb = DecodeRgb(image.dib, image.part);
  if (!rgb) return false;
  for (std::size_t i = 0; i < shown.size(); ++i) {
    if (shown[i] != 0) continue;
    const std::span<const std::uint8_t> pixel(&(*rgb)[3 * i], 3);
    if (std::ranges::any_of(pixel, [channel](std::uint8_t c) { return c != channel; }))
      return false;
  }
  return true;
}

bool ShowTheSame(const Blit& a, const Blit& b) {
  return DecodeRgb(a.dib, a.part) == DecodeRgb(b.dib, b.part);
}

bool HaveOneSize(const Blit& a, const Blit& b) {
  return a.part.width == b.part.width && a.part.height == b.part.height;
}

/// @return false when the blits are not what they look like.
bool PaintMasked(DeviceContext& device, std::span<const PendingBlit> blits,
                 const MaskedPicture& picture) {
  const Blit& mask = blits[picture.mask].blit;
  const Blit& image = blits[picture.image].blit;
  if (!HaveOneSize(mask, image) || mask.cut || image.cut) return false;
  auto shown = WhitePixels(mask);
  if (!shown) return false;
  for (std::uint8_t& pixel : *shown)
    pixel = std::uint8_t{(pixel != 0) == picture.showsWhite};
  const bool leavesTheRest = picture.outside ? HasOutside(image, *shown, *picture.outside)
                                             : ShowTheSame(image, blits.back().blit);
  if (!leavesTheRest) return false;
  Blit masked = image;
  masked.shown = std::make_shared<const std::vector<std::uint8_t>>(*std::move(shown));
  PaintBlit(device, masked, SRCCOPY, {});
  return true;
}

void Paint(DeviceContext& device, std::span<const PendingBlit> blits) {
  const MaskedPicture* const picture = WholePicture(blits);
  if (picture != nullptr && PaintMasked(device, blits, *picture)) return;
  if (blits.size() > 1 && AreAlike(blits.front().operation, SRCCOPY))
    return PaintStrips(device, blits);
  for (const PendingBlit& pending : blits)
    PaintBlit(device, pending.blit, pending.operation, {});
}

}  // namespace

void PostBlit(DeviceContext& device, Blit blit, TernaryRasterOperation operation) {
  PendingBlits& pending = device.pendingBlits;
  const bool goesWith = !pending.blits.empty() && pending.clip == device.state.clip &&
                        GoesWith(pending.blits, blit, operation);
  if (!goesWith) DrawPendingBlits(device);
  pending.clip = device.state.clip;
  pending.blits.push_back({std::move(blit), operation});
}

void DrawPendingBlits(DeviceContext& device) {
  const std::vector<PendingBlit> blits = std::exchange(device.pendingBlits.blits, {});
  if (blits.empty() || !BringClip(device, device.pendingBlits.clip)) return;
  Paint(device, blits);
}

}  // namespace kelvane

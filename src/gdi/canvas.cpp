#include "gdi/canvas.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "gdi/brush_pattern.h"
#include "gdi/exactly.h"
#include "gdi/page_color.h"
#include "platform/quartz/cg_extent.h"

namespace kelvane {
namespace {

constexpr double kScreenDotsPerInch = 96;

/// A brush's pixel is one of the device's where that is about as fine as a screen.
double PatternPixel(double dotsPerInch) {
  const bool isLikeAScreen = dotsPerInch >= 72 && dotsPerInch <= 150;
  return isLikeAScreen ? 1 : dotsPerInch / kScreenDotsPerInch;
}

/// A colour as a number of a key; none is -1.
std::int64_t KeyOf(const std::optional<RgbColor>& color) {
  return color ? color->red << 16 | color->green << 8 | color->blue : -1;
}

/// Viewers put a cell's corner at the pixel in which it lies. Where it lies on the edge of one,
/// rounding must not take it to the pixel before.
/// @param matrix  upright, of a pattern whose unit is a pixel.
CGAffineTransform IntoThePixel(CGAffineTransform matrix) {
  constexpr CGFloat kHair = 1.0F / 16;
  matrix.tx += std::abs(matrix.a) * kHair;
  matrix.ty += std::abs(matrix.d) * kHair;
  return matrix;
}

/// Into how many parts a point is divided: finer than any output shows the page, with few digits to
/// store.
CGFloat PartsOfAPoint(const CGAffineTransform& deviceToPage, const RectangleD& whole) {
  constexpr CGFloat kLargePage = 1638;
  constexpr CGFloat kHugePage = 10 * kLargePage;
  const CGFloat width = static_cast<CGFloat>(whole.right - whole.left) * deviceToPage.a;
  const CGFloat height = static_cast<CGFloat>(whole.bottom - whole.top) * deviceToPage.d;
  const CGFloat side = std::max(std::abs(width), std::abs(height));
  return side < kLargePage ? 1000.0F : side < kHugePage ? 100.0F : 10.0F;
}

/// An edge through the middle of a pixel gives the pixel to its lower right side. Rounding must not
/// take it across.
CGAffineTransform BelowTheMiddle(CGAffineTransform deviceToPage, CGFloat partsOfAPoint) {
  const CGFloat nearlyHalf = 0.4F / partsOfAPoint;
  deviceToPage.tx += nearlyHalf;
  deviceToPage.ty -= nearlyHalf;
  return deviceToPage;
}

}  // namespace

Canvas::Canvas(CGContext& surface, const CGAffineTransform& deviceToPage, const RectangleD& whole,
               const DeviceResolution& resolution)
    : surface_(surface),
      deviceToPage_(deviceToPage),
      pageToSurface_(surface.State().ctm),
      partsOfAPoint_(PartsOfAPoint(deviceToPage, whole)),
      whole_(whole),
      screenPixel_(resolution.dotsPerInchX / kScreenDotsPerInch),
      patternPixelX_(PatternPixel(resolution.dotsPerInchX)),
      patternPixelY_(PatternPixel(resolution.dotsPerInchY)) {}

Canvas::~Canvas() {
  for (std::size_t i = written_.size(); i > 0; --i)
    surface_.RestoreGState();
}

void Canvas::PutOnPage(CGPath& path) const {
  path.Map(BelowTheMiddle(deviceToPage_, partsOfAPoint_));
  path.Round(partsOfAPoint_);
}

void Canvas::Load(CGPath& path) {
  PutOnPage(path);
  surface_.SwapPath(path);
}

bool Canvas::ClipTo(CGPath& path) {
  PutOnPage(path);
  if (!path.IsFinite()) {
    path.Clear();
    return false;
  }
  surface_.SwapPath(path);
  surface_.Clip();
  return true;
}

TransformD Canvas::ToPage() const {
  return Exactly(BelowTheMiddle(deviceToPage_, partsOfAPoint_));
}

CGPoint Canvas::RoundOnPage(CGPoint point) const {
  return {std::rint(point.x * partsOfAPoint_) / partsOfAPoint_,
          std::rint(point.y * partsOfAPoint_) / partsOfAPoint_};
}

std::optional<RgbColor> Canvas::GroundUnder(const std::array<PointD, 4>& corners) const {
  CGPath place;
  const TransformD toPage = ToPage();
  for (const PointD corner : corners)
    place.LineTo(Rounded(toPage.Map(corner)));
  place.Map(pageToSurface_);
  const auto color = surface_.GroundOf(BoxOf(place));
  if (!color) return std::nullopt;
  return RgbColor{ChannelFromPage(color->red), ChannelFromPage(color->green),
                  ChannelFromPage(color->blue)};
}

bool Canvas::Take(Steps& allowed, std::uint64_t count) {
  const bool isAfforded = allowed.Take(count);
  hasRunOut_ = hasRunOut_ || !isAfforded;
  return isAfforded;
}

bool Canvas::Afford(std::uint64_t parts) {
  return Take(allowance_->repeats, parts);
}

// A pattern takes up to 7 KB of a PDF being made, with its image. Gradients and textures of their
// own come in records of about as many bytes.
bool Canvas::AffordPattern() {
  constexpr std::uint64_t kBytesForAPattern = 160;
  return Take(allowance_->patterns, kBytesForAPattern);
}

void Canvas::CountInVain(std::uint64_t points) {
  if (!allowance_->inVain.Take(points)) allowance_->inVain = Steps(0);
}

bool Canvas::BringClip(const ClipState& clip) {
  const std::shared_ptr<const ClipCut>& innermost = clip.Innermost();
  if (written_.empty() ? innermost == nullptr : written_.back().cut == innermost) {
    return written_.empty() || !written_.back().hidesAll;
  }
  std::vector<const std::shared_ptr<const ClipCut>*> missing;
  const std::shared_ptr<const ClipCut>* cut = &innermost;
  const auto depthOf = [](const std::shared_ptr<const ClipCut>& c) { return c ? c->Depth() : 0; };
  while (depthOf(*cut) > written_.size()) {
    missing.push_back(cut);
    cut = &(*cut)->Outer();
  }
  const auto leave = [&] {
    surface_.RestoreGState();
    written_.pop_back();
  };
  while (written_.size() > depthOf(*cut))
    leave();
  while (!written_.empty() && written_.back().cut != *cut) {
    missing.push_back(cut);
    cut = &(*cut)->Outer();
    leave();
  }
  std::ranges::reverse(missing);  // outermost first
  for (const auto* inner : missing)
    WriteCut(*inner);
  return written_.empty() || !written_.back().hidesAll;
}

void Canvas::WriteCut(const std::shared_ptr<const ClipCut>& cut) {
  surface_.SaveGState();
  written_.push_back({cut, !written_.empty() && written_.back().hidesAll});
  if (written_.back().hidesAll) return;
  CGPath path = PathOf(cut->CutTo(), whole_);
  const auto* outline = std::get_if<Outline>(&cut->CutTo());
  const bool isWinding = outline != nullptr && outline->fillMode == WINDING && !outline->isOutside;
  if (!path.HasSegments()) {
    written_.back().hidesAll = true;
    return;
  }
  if (!Afford(path.Reached().elements)) {
    written_.back().hidesAll = true;
    return;
  }
  Load(path);
  isWinding ? surface_.Clip() : surface_.EOClip();
}

CGSharedPattern Canvas::PatternOf(const BrushPaint& paint, PointL origin, RasterStep::Color color) {
  const CGSharedPattern cell = CellOf(paint, color);
  return cell != nullptr ? Placed(cell, origin) : nullptr;
}

// Patterns of one brush at many origins share its bitmap, which may be large. Each takes its place
// in the document: nobody can tell where the thousandth starts.
CGSharedPattern Canvas::Placed(const CGSharedPattern& cell, PointL origin) {
  constexpr std::size_t kMostPatterns = 1024;
  if (patterns_.size() >= kMostPatterns) origin = {};
  const auto [entry, isNew] = patterns_.try_emplace({cell, origin.x, origin.y});
  if (isNew) {
    const auto x = static_cast<CGFloat>(patternPixelX_);
    const auto y = static_cast<CGFloat>(patternPixelY_);
    // A pattern's rows lie top first from the origin down, its own space has y upwards.
    const auto left = static_cast<CGFloat>(origin.x);
    const CGFloat bottom = static_cast<CGFloat>(origin.y) + cell->cell.height * y;
    const CGAffineTransform patternToDevice = {x, 0, 0, -y, left, bottom};
    CGPattern pattern;
    pattern.cell = cell->cell;
    pattern.matrix =
        PatternMatrix(IntoThePixel(CGAffineTransformConcat(patternToDevice, deviceToPage_)));
    pattern.image = CFShare(cell->image.get());
    pattern.shapes = cell->shapes;
    entry->second = std::make_shared<const CGPattern>(std::move(pattern));
  }
  return entry->second;
}

CGSharedPattern Canvas::CellOf(const BrushPaint& paint, RasterStep::Color color) {
  const CellKey key = {paint.kind,
                       paint.hatch,
                       static_cast<std::uint32_t>(KeyOf(paint.color)),
                       KeyOf(paint.background),
                       paint.pattern.header.data(),
                       paint.pattern.usage,
                       paint.palette,
                       color};
  if (const auto known = cells_.find(key); known != cells_.end()) return known->second;
  if (!Afford(SizeOfPattern(paint) + paint.palette.size())) return nullptr;
  auto cell = MakePattern(paint, color);
  CGSharedPattern& entry = cells_[key];
  if (cell) entry = std::make_shared<const CGPattern>(*std::move(cell));
  return entry;
}

}  // namespace kelvane

#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <tuple>
#include <vector>

#include "gdi/brush.h"
#include "gdi/clip_state.h"
#include "gdi/geometry.h"
#include "gdi/raster_operation.h"
#include "gdi/steps.h"
#include "platform/quartz/cg_context.h"

namespace kelvane {

/// How fine the device is whose pixels are the device units.
struct DeviceResolution {
  double dotsPerInchX = 96;
  double dotsPerInchY = 96;
};

/// The surface that a device context draws on, cut to its clip. Marks are brought onto the page
/// here, so that a pen whose width comes out alike in all directions is an upright number there,
/// however slightly pixels are taller than wide.
class Canvas {
 public:
  /// @param surface       borrowed; its user space, as it is now, is what is called the page here.
  /// @param deviceToPage  upright.
  /// @param whole         all that can be seen, device units.
  Canvas(CGContext& surface, const CGAffineTransform& deviceToPage, const RectangleD& whole,
         const DeviceResolution& resolution);
  ~Canvas();
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  [[nodiscard]] CGContext& Surface() { return surface_; }
  [[nodiscard]] const CGAffineTransform& DeviceToPage() const { return deviceToPage_; }

  /// All that can be seen, device units.
  [[nodiscard]] const RectangleD& Whole() const { return whole_; }

  /// Makes a path in device units the surface's current path.
  /// @param path  empty afterwards, with memory for the next one.
  void Load(CGPath& path);

  /// Cuts what follows to a path as Load takes it.
  /// @return false, and cuts nothing, when it lies nowhere: its numbers are not finite.
  bool ClipTo(CGPath& path);

  /// @return what brings points of the device onto the page, as it does those of paths before they
  ///         are rounded.
  [[nodiscard]] TransformD ToPage() const;

  /// @param toPage  of a pattern. @return its matrix for the surface, which has patterns lie where
  ///        they lie whatever its own transform is.
  [[nodiscard]] CGAffineTransform PatternMatrix(const CGAffineTransform& toPage) const {
    return CGAffineTransformConcat(toPage, pageToSurface_);
  }

  /// @return a point of the page as those of paths are stored.
  [[nodiscard]] CGPoint RoundOnPage(CGPoint point) const;

  /// Cuts what follows to a clip.
  /// @return false when nothing is left to be seen, or the clip cannot be afforded any more.
  bool BringClip(const ClipState& clip);

  /// What a small file can have drawn again and again: the elements of clips that are left and
  /// entered and of paths that are saved and painted, the bytes of brushes in ever new colours. A
  /// large file may have more of it.
  bool Afford(std::uint64_t parts);
  void AllowFor(std::size_t fileSize) {
    allowance_->repeats.Add(fileSize);
    allowance_->patterns.Add(fileSize);
    allowance_->pixels.Add(8 * std::uint64_t{fileSize});
  }

  /// Makes this the canvas of a picture within another's, which may be drawn again and again: both
  /// take from what the other one can afford.
  void ShareAllowanceOf(const Canvas& outer) { allowance_ = outer.allowance_; }

  /// One more pattern of a brush of EMF+, which an output keeps.
  bool AffordPattern();

  /// What bitmaps decode to: a few bytes of one that is compressed can stand for any size.
  [[nodiscard]] bool AffordPixels(std::uint64_t bytes) { return allowance_->pixels.Take(bytes); }

  /// How many points may still be made and given up again, because they come to too much.
  [[nodiscard]] std::uint64_t MostInVain() const { return allowance_->inVain.Left(); }
  void CountInVain(std::uint64_t points);

  /// Whether something was not drawn because it could not be afforded.
  [[nodiscard]] bool HasRunOut() const { return hasRunOut_; }

  /// @param corners  of a quadrilateral, device units.
  /// @return the colour that the page has throughout the box around it; nullopt where that is not
  ///         known, or not one.
  [[nodiscard]] std::optional<RgbColor> GroundUnder(const std::array<PointD, 4>& corners) const;

  /// Device units in 1/96 inch, the pixel of what keeps its size on every device.
  [[nodiscard]] double ScreenPixel() const { return screenPixel_; }

  /// Points in a device unit from left to right.
  [[nodiscard]] double PointsPerUnit() const { return std::abs(double{deviceToPage_.a}); }

  /// @return a brush that is no plain colour as a pattern in the colours of a step; null when its
  ///         bitmap cannot be read. The same one each time.
  /// @param origin  of the pattern, device units.
  CGSharedPattern PatternOf(const BrushPaint& paint, PointL origin, RasterStep::Color color);

  /// @param cell  a unit a pixel of a brush, not null. @param origin  of the pattern, device units.
  /// @return it as it lies on the page, the same one each time.
  CGSharedPattern Placed(const CGSharedPattern& cell, PointL origin);

 private:
  using CellKey =
      std::tuple<Brush::Kind, HatchStyle, std::uint32_t, std::int64_t, const unsigned char*,
                 DibUsage, std::vector<DibColor>, RasterStep::Color>;
  using PatternKey = std::tuple<CGSharedPattern, std::int32_t, std::int32_t>;  // cell, origin

  struct Allowance {
    Steps repeats{1U << 22};
    Steps patterns{1U << 20};  // bytes of the file
    Steps pixels{1U << 24};    // bytes
    Steps inVain{1U << 22};    // points
  };

  struct WrittenCut {
    std::shared_ptr<const ClipCut> cut;
    bool hidesAll;  // it, or one around it
  };

  bool Take(Steps& allowed, std::uint64_t count);
  void PutOnPage(CGPath& path) const;
  void WriteCut(const std::shared_ptr<const ClipCut>& cut);
  CGSharedPattern CellOf(const BrushPaint& paint, RasterStep::Color color);

  CGContext& surface_;
  CGAffineTransform deviceToPage_;
  CGAffineTransform pageToSurface_;  // none but for a picture that lies turned in another one
  CGFloat partsOfAPoint_;            // to which coordinates are rounded
  RectangleD whole_;
  double screenPixel_;
  double patternPixelX_;  // device units in a pixel of a brush
  double patternPixelY_;
  std::shared_ptr<Allowance> allowance_ = std::make_shared<Allowance>();
  bool hasRunOut_ = false;
  std::vector<WrittenCut> written_;           // each within a state that was saved, outermost first
  std::map<CellKey, CGSharedPattern> cells_;  // a unit a pixel, wherever they lie
  std::map<PatternKey, CGSharedPattern> patterns_;
};

}  // namespace kelvane

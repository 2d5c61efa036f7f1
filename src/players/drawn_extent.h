#pragma once

#include <optional>

#include "platform/quartz/cg_context.h"
#include "players/page_placement.h"

namespace kelvane {

/// A surface that only measures how far its marks reach.
class DrawnExtent final : public CGContext {
 public:
  DrawnExtent() = default;

  /// @return the box around all marks so far, page space, by the control points of curves and with
  ///         half of each line's width; nullopt without a mark.
  [[nodiscard]] std::optional<StoredRectangle> Area() const;

  void Close() override {}
  [[nodiscard]] CGFontFilter FontFilter() const override { return AnyFont; }

 private:
  ~DrawnExtent() override = default;

  void PageBegins(const CGRect& /*mediaBox*/) override {}
  void PageEnds() override {}
  void PathPainted(const CGPath& path, CGPathDrawingMode mode) override;
  void ImageDrawn(const CGImage& image, const CGAffineTransform& matrix) override;
  void ShadingDrawn(const CGShading& shading) override;
  void GlyphsDrawn(const CGGlyphRun& run) override;

  void Add(const CGBox& box);

  std::optional<CGBox> area_;
};

}  // namespace kelvane

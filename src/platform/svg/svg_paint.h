#pragma once

#include <map>
#include <string>

#include "platform/quartz/cg_color_space.h"
#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_image.h"
#include "platform/quartz/cg_pattern.h"
#include "platform/quartz/cg_shading.h"
#include "platform/svg/svg_definitions.h"
#include "platform/svg/svg_image.h"
#include "platform/svg/svg_page.h"

namespace kelvane {

/// What marks are filled with: values of the properties `fill` and `stroke` (SVG 1.1, 11.2).
class SvgPaints {
 public:
  /// All are borrowed.
  SvgPaints(const SvgPage& page, SvgDefinitions& definitions, SvgImages& images)
      : page_(page), definitions_(definitions), images_(images) {}

  [[nodiscard]] const SvgPage& Page() const { return page_; }

  /// @param pattern    in place of the colour; null for none.
  /// @param transform  of the element that is filled. Throws as the providers of images do.
  std::string PaintOf(const CGColor& color, const CGSharedPattern& pattern,
                      const CGAffineTransform& transform);

  /// A shading in page space that covers the page. @return the elements that draw it.
  std::string ShadingOverPage(const CGShading& shading);

  /// Draws an image.
  /// @param toPage  maps its pixels, y downwards from its top left corner, to where it is drawn.
  /// @return the element without its end; empty when there is nothing to draw.
  std::string ImageElement(const CGImage& image, const CGColor& color,
                           const CGAffineTransform& toPage);

 private:
  std::string PatternPaint(const CGPattern& pattern, const CGAffineTransform& transform);
  std::string TilingPaint(const CGPattern& pattern, const CGAffineTransform& matrix);
  std::string CellOf(const CGPattern& pattern, double scale);

  const SvgPage& page_;
  SvgDefinitions& definitions_;
  SvgImages& images_;
  std::map<CGSharedPattern, std::string> plain_;  // for elements without a transform
};

/// @param scale  points a unit of that page.
/// @return whether the image is drawn so large that Windows shows its pixels.
bool SvgIsSharp(const CGImage& image, const CGAffineTransform& toPage, double scale);

}  // namespace kelvane

#pragma once

#include <string>
#include <string_view>

#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_glyph_run.h"
#include "platform/svg/svg_font.h"
#include "platform/svg/svg_number.h"
#include "platform/svg/svg_page.h"

namespace kelvane {

/// Where the text of a run stands: on the page as it is, or under a transform of its own.
class SvgTextFrame {
 public:
  SvgTextFrame(const CGGlyphRun& run, const SvgPage& page);

  [[nodiscard]] const CGAffineTransform& Transform() const { return transform_; }
  [[nodiscard]] const SvgGrid& Grid() const { return grid_; }
  [[nodiscard]] double FontSize() const { return fontSize_; }

  /// @param origin  text space. @return the place under the transform.
  [[nodiscard]] CGPoint At(CGPoint origin) const {
    return CGPointApplyAffineTransform(origin, fromText_);
  }

  /// @return from the units of a face of so many an em, at an origin of text space, to the place
  ///         under the transform.
  [[nodiscard]] CGAffineTransform FromGlyph(CGPoint origin, unsigned unitsPerEm) const;

 private:
  CGAffineTransform transform_;
  CGAffineTransform fromText_;
  CGFloat size_;  // text space units an em
  double fontSize_;
  SvgGrid grid_;
};

/// Writes the run as text of real characters, each at its place. Glyphs that browsers would not
/// choose by themselves become outlines, under text that is not seen but can be found.
/// @param paint  attributes of what is seen.
/// @return the elements.
std::string SvgText(const CGGlyphRun& run, const SvgTextFrame& frame, std::string_view paint,
                    SvgFont& font);

/// @return text as it stands in a document; what XML has no place for is left out.
std::string SvgEscaped(std::u16string_view text);

}  // namespace kelvane

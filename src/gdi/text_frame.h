#pragma once

#include "gdi/font_book.h"
#include "gdi/geometry.h"
#include "gdi/mapping.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_objects.h"

namespace kelvane {

/// How a line of text lies on the device. Its own axes run along the baseline and up from it, in
/// logical units.
struct TextFrame {
  PointD along;  // device units of a logical unit along the baseline
  PointD up;     // device units of a logical unit up from it

  // Of glyphs, which turn apart from their line where lfOrientation says so.
  PointD glyphAlong;  // device units of an em
  PointD glyphUp;

  double em = 0;  // logical units of an em along the baseline, by which a face's advances count

  /// The frame of glyphs that are turned a quarter to the left.
  [[nodiscard]] constexpr TextFrame Turned() const {
    return {along, up, glyphUp, {-glyphAlong.x, -glyphAlong.y}, em};
  }

  /// @param place  in the line's own axes. @return the distance on the device.
  [[nodiscard]] constexpr PointD ToDevice(PointD place) const {
    return {place.x * along.x + place.y * up.x, place.x * along.y + place.y * up.y};
  }

  /// Device units of a logical unit along the baseline.
  [[nodiscard]] double PixelsAlong() const { return std::hypot(along.x, along.y); }

  /// Device units of a logical unit up from the baseline.
  [[nodiscard]] double PixelsUp() const { return std::hypot(up.x, up.y); }
};

/// @param font  as it is asked for. @param face  as it is drawn.
/// @param mode  of the record: with GM_ADVANCED text takes part in all transforms, otherwise it
///              stays upright and readable, and its size goes by the vertical scale.
TextFrame FrameOf(const LogFont& font, const TextFont& face, const Mapping& mapping,
                  GraphicsMode mode);

}  // namespace kelvane

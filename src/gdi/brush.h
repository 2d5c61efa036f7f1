#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "gdi/palette.h"
#include "metafile/dib.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_objects.h"

namespace kelvane {

/// What a brush is made of; colours are looked up when it paints.
struct Brush {
  enum class Kind : std::uint8_t {
    kNull,         // paints nothing
    kSolid,        // a colour
    kHatched,      // lines in a colour
    kMonoPattern,  // a bitmap in the text's and the background's colours
    kPattern,      // a bitmap with colours of its own
  };

  Kind kind = Kind::kNull;
  ColorRef color{};    // of kSolid and kHatched
  HatchStyle hatch{};  // of kHatched
  DibBytes pattern{};  // of kMonoPattern and kPattern
};

Brush CreateSolidBrush(ColorRef color);

/// @return nullopt for a style or hatch that is none, and for patterns, which need their bitmap.
std::optional<Brush> CreateBrushIndirect(const LogBrush& brush);

/// A brush of a bitmap with one bit a pixel: 0 is the text's colour, 1 the background's.
Brush CreatePatternBrush(const DibBytes& pattern);

Brush CreateDIBPatternBrushPt(const DibBytes& pattern);

/// What of a device context's state brushes look at.
struct BrushColors {
  ColorRef text;
  ColorRef background;
  BackgroundMode mode = OPAQUE;
  const Palette& palette;
};

/// What a brush paints with, here and now.
struct BrushPaint {
  Brush::Kind kind = Brush::Kind::kNull;
  RgbColor color{};  // of kSolid; of a hatch's lines; of the bits 0 of kMonoPattern

  /// Of a hatch's gaps, which are left as they are without it; of the bits 1 of kMonoPattern.
  std::optional<RgbColor> background{};

  HatchStyle hatch{};  // of kHatched: one of the six that are lines
  DibBytes pattern{};  // of kMonoPattern and kPattern

  /// Of a kPattern whose colours are numbers of a palette's: those of the one that is selected.
  std::vector<DibColor> palette{};
};

BrushPaint ResolveBrush(const Brush& brush, const BrushColors& colors);

}  // namespace kelvane

#pragma once

#include <cstdint>
#include <optional>
#include <variant>
#include <vector>

#include "metafile/emfplus/emfplus_enumerations.h"
#include "metafile/emfplus/emfplus_image.h"
#include "metafile/emfplus/emfplus_path.h"
#include "metafile/emfplus/emfplus_types.h"

namespace kelvane {
inline namespace metafile {

inline constexpr std::uint32_t kEmfPlusHatchStyles = 53;

struct EmfPlusHatchBrush {
  std::uint32_t style = 0;  // HatchStyle ([MS-EMFPLUS] 2.1.1.13); from kEmfPlusHatchStyles on none
  Argb foreground;
  Argb background;
};

struct EmfPlusTextureBrush {
  EmfPlusWrapMode wrap{};
  bool staysInPlace = false;  // the world transform does not move it
  XForm transform{1, 0, 0, 1, 0, 0};
  std::optional<EmfPlusImage> image;
};

/// How the colours of a gradient follow each other, by positions from 0 to 1. Either as factors, of
/// the end colour in a mixture with the start colour; or as colours, in place of both; or neither.
struct EmfPlusBlend {
  std::vector<float> positions;
  std::vector<float> factors;  // as many as positions, or none
  std::vector<Argb> colors;    // as many as positions, or none
};

struct EmfPlusLinearGradientBrush {
  EmfPlusWrapMode wrap{};
  bool isGammaCorrected = false;  // colours are mixed as light is
  bool staysInPlace = false;      // the world transform does not move it
  RectF rectangle;                // colours change from its left edge to its right one
  Argb start;
  Argb end;
  XForm transform{1, 0, 0, 1, 0, 0};  // from the rectangle's space to the world
  EmfPlusBlend blend;                 // from start to end
  EmfPlusBlend verticalBlend;         // factors only
};

/// In its blend 0 is the boundary and 1 the centre.
struct EmfPlusPathGradientBrush {
  EmfPlusWrapMode wrap{};
  bool isGammaCorrected = false;
  bool staysInPlace = false;
  Argb centerColor;
  PointF center;
  std::vector<Argb> surroundColors;  // fewer than points: the last one repeats
  std::variant<std::vector<PointF>, EmfPlusPath> boundary;  // a polygon, or a path
  XForm transform{1, 0, 0, 1, 0, 0};  // from the boundary's space to the world
  EmfPlusBlend blend;
  PointF focusScales;  // the part of the boundary, about the centre, that has the centre's colour
};

/// EmfPlusBrush ([MS-EMFPLUS] 2.2.1.1). A plain colour is a brush, too.
using EmfPlusBrush = std::variant<Argb, EmfPlusHatchBrush, EmfPlusTextureBrush,
                                  EmfPlusLinearGradientBrush, EmfPlusPathGradientBrush>;

/// @param bytes  the object from its version on. @return nullopt for what is no brush.
std::optional<EmfPlusBrush> ReadEmfPlusBrush(ByteView& bytes);

}  // namespace metafile
}  // namespace kelvane

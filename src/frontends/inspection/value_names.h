#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "metafile/emf/emf_comment_records.h"
#include "metafile/gdi_enumerations.h"

namespace kelvane {

/// A name for the values that have just these bits under the mask.
struct NamedBits {
  std::uint32_t mask;
  std::uint32_t bits;
  std::string_view name;
};

/// The names of an enumeration, in the order in which they are to be written. Of a plain one only
/// one can apply; of flags and of values made of several parts each part has its own.
using ValueNames = std::span<const NamedBits>;

// The names are those of the enumerators. The value itself is of no interest.
ValueNames NamesOf(MapMode);
ValueNames NamesOf(GraphicsMode);
ValueNames NamesOf(WorldTransformMode);
ValueNames NamesOf(Layout);
ValueNames NamesOf(BackgroundMode);
ValueNames NamesOf(PolyFillMode);
ValueNames NamesOf(BinaryRasterOperation);
ValueNames NamesOf(TernaryRasterOperation);
ValueNames NamesOf(StretchMode);
ValueNames NamesOf(ArcDirection);
ValueNames NamesOf(IcmMode);
ValueNames NamesOf(ColorMatchAction);
ValueNames NamesOf(TextAlign);
ValueNames NamesOf(ExtTextOutOptions);
ValueNames NamesOf(PenStyle);
ValueNames NamesOf(BrushStyle);
ValueNames NamesOf(HatchStyle);
ValueNames NamesOf(StockObject);
ValueNames NamesOf(RegionMode);
ValueNames NamesOf(PointType);
ValueNames NamesOf(GradientFillMode);
ValueNames NamesOf(FloodFillMode);
ValueNames NamesOf(DibUsage);
ValueNames NamesOf(DibCompression);
ValueNames NamesOf(CharacterSet);
ValueNames NamesOf(OutPrecision);
ValueNames NamesOf(ClipPrecision);
ValueNames NamesOf(FontQuality);
ValueNames NamesOf(PitchAndFamily);
ValueNames NamesOf(PublicCommentType);

}  // namespace kelvane

#pragma once

#include <cstdint>

namespace kelvane {

/// Why what was drawn is only near to what Windows draws.
enum class Shortfall : std::uint8_t {
  kBlendedColors,       // a raster operation on colours that blend modes do not treat as bits
  kUnreadablePattern,   // the bitmap of a brush or pen cannot be read, and nothing was painted
  kClipTooComplex,      // a clip would have taken too long, and was left as it was
  kRegionTooComplex,    // a region would have taken too long, and was not painted
  kPathTooComplex,      // a path's outline would have taken too long, and the path was left
  kDrawnTooOften,       // it repeats so much that it was not drawn
  kMissingCharacters,   // no face has some of the characters
  kForeignGlyphs,       // glyph numbers of a face that is not there
  kUnreadableBitmap,    // a bitmap cannot be read, and was not drawn
  kBitmapTooLarge,      // a bitmap is far larger than its data, and was not drawn
  kBrushTooComplex,     // a brush repeats too often or has too many parts, and came out only nearly
  kUnreadableMetafile,  // a metafile within this one cannot be read, and was not drawn
  kMetafileTooDeep,     // a metafile lies within too many others, and was not drawn
  kMetafilesTooLarge,   // those within this one are too much, and one was not drawn
};

inline constexpr int kShortfalls = 14;

/// A set of them.
class Shortfalls {
 public:
  void Add(Shortfall shortfall) { bits_ |= BitOf(shortfall); }
  [[nodiscard]] bool Has(Shortfall shortfall) const { return (bits_ & BitOf(shortfall)) != 0; }
  [[nodiscard]] bool IsEmpty() const { return bits_ == 0; }
  void Clear() { bits_ = 0; }

 private:
  static constexpr std::uint32_t BitOf(Shortfall shortfall) {
    return 1U << static_cast<std::uint32_t>(shortfall);
  }

  std::uint32_t bits_ = 0;
};

}  // namespace kelvane

#pragma once

#include <cstddef>
#include <cstdint>
#include <tuple>

#include "metafile/byte_view.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_types.h"
#include "metafile/text_advances.h"

namespace kelvane {
inline namespace metafile {

// Text ([MS-EMF] 2.3.5). Coordinates are logical units. A Unit is char, a byte in the font's
// character set, or char16_t, UTF-16 or a glyph number.
//
// Decoders take the record behind its type and size, and leave it short when fields or characters
// are missing, but not when advances are: a face has its own.

/// EMRTEXT ([MS-EMF] 2.2.5) as it is stored, 40 bytes.
struct StoredText {
  PointL reference;
  std::uint32_t chars = 0;
  std::uint32_t offString = 0;  // from the start of the record
  ExtTextOutOptions options{};
  RectangleL rectangle;
  std::uint32_t offDx = 0;  // from the start of the record; 0 when there are no advances

  constexpr auto Fields() {
    return std::tie(reference, chars, offString, options, rectangle, offDx);
  }
  friend bool operator==(const StoredText&, const StoredText&) = default;
};

/// The arguments of ExtTextOut.
template <class Unit>
struct TextItem {
  PointL reference;
  ExtTextOutOptions options{};
  RectangleL rectangle;  // of ETO_OPAQUE and ETO_CLIPPED
  ArrayView<Unit> text;
  TextAdvances<std::int32_t> advances;
};

/// What all text records say of how their recorder drew them.
struct TextScale {
  GraphicsMode graphicsMode{};
  float exScale = 0;  // 0.01 mm a unit, of GM_COMPATIBLE; often nonsense
  float eyScale = 0;  // 0.01 mm a unit, of GM_COMPATIBLE; often nonsense

  constexpr auto Fields() { return std::tie(graphicsMode, exScale, eyScale); }
};

/// EMR_EXTTEXTOUTA, EMR_EXTTEXTOUTW ([MS-EMF] 2.3.5.7, .8).
template <class Unit>
struct ExtTextOutRecord {
  RectangleL bounds;  // device units, a hint
  TextScale scale;
  TextItem<Unit> text;
};
template <class Unit>
ExtTextOutRecord<Unit> DecodeExtTextOut(ByteView& bytes);

/// EMR_POLYTEXTOUTA, EMR_POLYTEXTOUTW ([MS-EMF] 2.3.5.32, .33).
template <class Unit>
struct PolyTextOutRecord {
  RectangleL bounds;  // device units, a hint
  TextScale scale;
  ArrayView<StoredText> texts;
  ByteView record;  // what the texts' offsets lead into

  /// @param index  below texts.size().
  [[nodiscard]] TextItem<Unit> Text(std::size_t index) const;
};
template <class Unit>
PolyTextOutRecord<Unit> DecodePolyTextOut(ByteView& bytes);

/// EMR_SMALLTEXTOUT ([MS-EMF] 2.3.5.37).
struct SmallTextOutRecord {
  PointL reference;
  ExtTextOutOptions options{};
  TextScale scale;
  RectangleL bounds;                   // with ETO_NO_RECT zeros
  ArrayView<unsigned char> smallText;  // with ETO_SMALL_CHARS: the low bytes of UTF-16 units
  ArrayView<char16_t> text;            // without
};
SmallTextOutRecord DecodeSmallTextOut(ByteView& bytes);

}  // namespace metafile
}  // namespace kelvane

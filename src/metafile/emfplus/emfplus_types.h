#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "metafile/byte_view.h"
#include "metafile/gdi_types.h"

namespace kelvane {
inline namespace metafile {

// The values of EMF+ ([MS-EMFPLUS] 2.2.2), field by field as files store them. A matrix is an
// XForm.

/// EmfPlusPointF: 8 bytes.
struct PointF {
  float x = 0;
  float y = 0;

  constexpr auto Fields() { return std::tie(x, y); }
  friend bool operator==(const PointF&, const PointF&) = default;
};

/// EmfPlusRectF: 16 bytes. Width and height may be negative.
struct RectF {
  float x = 0;
  float y = 0;
  float width = 0;
  float height = 0;

  constexpr auto Fields() { return std::tie(x, y, width, height); }
  friend bool operator==(const RectF&, const RectF&) = default;
};

/// EmfPlusARGB: 4 bytes. Colours are not multiplied by alpha.
struct Argb {
  std::uint8_t blue = 0;
  std::uint8_t green = 0;
  std::uint8_t red = 0;
  std::uint8_t alpha = 0;  // 255 hides what is below

  constexpr auto Fields() { return std::tie(blue, green, red, alpha); }
  friend bool operator==(const Argb&, const Argb&) = default;
};

/// 16 bytes, as they are stored.
using EmfPlusGuid = std::array<unsigned char, 16>;

/// How coordinates are stored.
enum class EmfPlusNumbers : std::uint8_t {
  kFloats,
  kIntegers,  // 16 bits each
  kRelative   // 1 or 2 bytes each, points counted from the one before
};

/// @return the points that are there; the view is left short when they are fewer than `count`.
std::vector<PointF> ReadEmfPlusPoints(ByteView& bytes, std::size_t count, EmfPlusNumbers numbers);

/// @param numbers  kFloats or kIntegers. @return as ReadEmfPlusPoints.
std::vector<RectF> ReadEmfPlusRectangles(ByteView& bytes, std::size_t count,
                                         EmfPlusNumbers numbers);
RectF ReadEmfPlusRectangle(ByteView& bytes, EmfPlusNumbers numbers);

/// Whether it is what versions of EMF+ look like, whichever GDI+ it was.
bool IsEmfPlusVersion(std::uint32_t version);

/// What the objects begin with ([MS-EMFPLUS] 2.2.2.19). Fails the view when it is no version of
/// EMF+.
void ReadEmfPlusVersion(ByteView& bytes);

/// @return the values that are there; the view is left short when they are fewer than `count`.
template <class T>
std::vector<T> ReadEmfPlusList(ByteView& bytes, std::size_t count) {
  const ArrayView<T> stored = bytes.Array<T>(count);
  return std::vector<T>(stored.begin(), stored.end());
}

/// UTF-16 units; as ReadEmfPlusList.
std::u16string ReadEmfPlusText(ByteView& bytes, std::size_t length);

/// @return what was read of the bytes, unless they were too short for it.
template <class T>
std::optional<T> UnlessShort(const ByteView& bytes, T read) {
  if (bytes.IsShort()) return std::nullopt;
  return std::optional<T>(std::move(read));
}

}  // namespace metafile
}  // namespace kelvane

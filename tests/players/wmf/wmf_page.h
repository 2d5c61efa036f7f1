#pragma once

#include "support/metafile.h"
#include "support/windows_metafile.h"

namespace kelvane::test {

/// A Windows metafile whose page has a hundred units either way, each of them a point of the traced
/// page.
inline WindowsMetafile OnPlainPage() {
  constexpr std::uint32_t kUnitsPerInch = 1440;
  WindowsMetafile windows;
  windows.Placeable(0, 0, 100, 100, kUnitsPerInch);
  return windows;
}

inline constexpr RectangleL kBox = {20, 30, 60, 70};

// A box that shows the state, of either kind of metafiles.

inline void Box(WindowsMetafile& windows) {
  windows.Record(0x041B, {70, 60, 30, 20});
}

inline void Box(Metafile& enhanced) {
  enhanced.Rectangle(kBox);
}

// Text in a font of 20 units, of either kind of metafiles.

inline WindowsMetafile& SelectPlainFont(WindowsMetafile& windows) {
  const Bytes font = Bytes().I16(-20).I16(0).I16(0).I16(0).I16(400).Zeros(8).Each(
      {'L', 'i', 'b', 'e', 'r', 'a', 't', 'i', 'o', 'n', ' ', 'S', 'a', 'n', 's', 0});
  return windows.Record(0x02FB, font).Record(0x012D, {0});
}

inline Metafile& SelectPlainFont(Metafile& enhanced) {
  return enhanced.CreateFont(1, {.height = -20}).SelectObject(1);
}

inline void WriteOnGround(WindowsMetafile& windows) {
  const Bytes text = Bytes().I16(40).I16(30).U16(3).U16(0).Each({'a', ' ', 'b', 0});
  SelectPlainFont(windows).Record(0x0A32, text);
}

inline void WriteOnGround(Metafile& enhanced) {
  SelectPlainFont(enhanced).TextOutA({30, 40}, "a b");
}

}  // namespace kelvane::test

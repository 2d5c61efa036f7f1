#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "support/metafile.h"

namespace kelvane::test {

using File = std::vector<unsigned char>;

inline constexpr std::size_t kFixed = 128 + 332 + 12;  // header, end and font

inline std::uint32_t Number(std::size_t value) {
  return static_cast<std::uint32_t>(value);
}

inline std::int32_t Signed(std::size_t value) {
  return static_cast<std::int32_t>(value);
}

/// A coordinate on the page, another one for each number.
inline std::int32_t Scattered(std::size_t number) {
  return static_cast<std::int32_t>(Number(number) * 2654435761U >> 22);  // below 1024
}

inline Bytes Bitmap(std::int32_t width, std::int32_t height, std::size_t bytes) {
  Bytes bitmap;
  bitmap.BitmapHeader({.width = width, .height = height});
  for (std::size_t i = 0; i * 4 < bytes; ++i)
    bitmap.U32(Number(i) * 2654435761U);
  return bitmap;
}

/// Repeats what `add` adds, `bytes` of it at a time.
template <class Add>
File Repeated(std::size_t size, std::size_t bytes, const Add& add) {
  Metafile metafile;
  metafile.Bounds(0, 0, 1024, 1024).CreateFont(1, {}).SelectObject(1);
  for (std::size_t i = 0; i * bytes + kFixed < size; ++i)
    add(metafile, i);
  return metafile.Build();
}

}  // namespace kelvane::test

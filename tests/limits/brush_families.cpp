#include "limits/brush_families.h"

namespace kelvane::test {

// A hatch of other lines each.
File HatchedBrushes(std::size_t size) {
  return Repeated(size, 24 + 12 + 24 + 12, [](Metafile& metafile, std::size_t i) {
    constexpr std::uint32_t kHatched = 2;
    constexpr std::uint32_t kBrush = 2;
    const auto hatch = Number(i % 6);
    metafile.Record(EMR_CREATEBRUSHINDIRECT,
                    Bytes().U32(kBrush).U32(kHatched).U32(Number(i)).U32(hatch));
    metafile.SelectObject(kBrush).Rectangle({1, 2, 90, 90}).DeleteObject(kBrush);
  });
}

// Marks with the bitmap of one brush, which has half of the bytes, at an origin each.
File BrushOrigins(std::size_t size) {
  constexpr std::uint32_t kFixedSize = 32;
  const std::size_t rows = size / 2 / 192;
  const Bytes pixels = Bitmap(64, Signed(rows), 192 * rows);
  Metafile metafile;
  metafile.Bounds(0, 0, 1024, 1024);
  Bytes brush = Bytes().U32(1).U32(0).U32(kFixedSize).U32(40).U32(kFixedSize + 40);
  brush.U32(Number(192 * rows)).Append(pixels.Data());
  metafile.Record(EMR_CREATEDIBPATTERNBRUSHPT, brush).SelectObject(1);
  for (std::size_t i = 0; i < size / 2 / (16 + 24); ++i) {
    metafile.Record(EMR_SETBRUSHORGEX, Bytes().PointL(Signed(i), Signed(i)));
    metafile.Rectangle({1, 2, 3, 4});
  }
  return metafile.Build();
}

}  // namespace kelvane::test

#include "limits/picture_families.h"

#include "support/blits.h"

namespace kelvane::test {
namespace {

BitmapParts MaskOfOneColor() {
  return {Bytes().BitmapHeader({.bitCount = 1}).Color(0, 0, 0).Color(255, 255, 255),
          Bytes().U32(0)};
}

BitmapParts Pixels(std::int32_t width, std::size_t seed) {
  const std::size_t rowBytes = (static_cast<std::size_t>(width) * 3 + 3) / 4 * 4;
  Bytes pixels;
  for (std::size_t i = 0; i * 4 < rowBytes; ++i)
    pixels.U32((Number(seed) + Number(i)) * 2654435761U);
  return {Bytes().BitmapHeader({.width = width}), pixels};
}

Bytes GradientOf(std::size_t vertices, std::size_t meshes, std::uint32_t mode) {
  Bytes body = Bytes().Rectangle(0, 0, -1, -1).U32(Number(vertices)).U32(Number(meshes)).U32(mode);
  for (std::size_t i = 0; i < vertices; ++i) {
    body.PointL(Scattered(i), Scattered(3 * i + 1)).U16(Number(i) << 8 & 0xFF00);
    body.U16(0xFF00).U16(0).U16(0);
  }
  return body;
}

}  // namespace

File SmallBlits(std::size_t size) {
  return Repeated(size, 108 + 40 + 4, [](Metafile& metafile, std::size_t i) {
    AddBlit(metafile, kStretchBlt,
            {.destination = {Scattered(i), Scattered(i + 1)}, .bitmap = Pixels(1, i)});
  });
}

// Rows of one picture, each below the one before.
File Strips(std::size_t size) {
  return Repeated(size, 80 + 40 + 192, [](Metafile& metafile, std::size_t i) {
    AddBlit(metafile, kStretchDibits,
            {.destination = {0, Signed(i)},
             .size = {64, 1},
             .sourceSize = {64, 1},
             .bitmap = Pixels(64, i)});
  });
}

// Images, each with a mask before it.
File MaskedImages(std::size_t size) {
  constexpr std::uint32_t kSrcAnd = 0x008800C6;
  constexpr std::uint32_t kSrcPaint = 0x00EE0086;
  return Repeated(size, 2 * 108 + 52 + 44, [](Metafile& metafile, std::size_t i) {
    Blit blit = {.destination = {Scattered(i), Scattered(i + 1)}};
    blit.operation = kSrcAnd;
    blit.bitmap = MaskOfOneColor();
    AddBlit(metafile, kStretchBlt, blit);
    blit.operation = kSrcPaint;
    blit.bitmap = Pixels(1, i);
    AddBlit(metafile, kStretchBlt, blit);
  });
}

File GradientRectangles(std::size_t size) {
  return Repeated(size, 36 + 32 + 8, [](Metafile& metafile, std::size_t i) {
    Bytes body = Bytes().Rectangle(0, 0, -1, -1).U32(2).U32(1).U32(Number(i % 2));
    body.PointL(Scattered(i), 0).U16(0xFF00).Zeros(6).PointL(Scattered(i + 1), 9).Zeros(8);
    metafile.Record(kGradientFill, body.U32(0).U32(1));
  });
}

// Half of the bytes are vertices, of which the triangles have three each.
File AMesh(std::size_t size) {
  const std::size_t vertices = size / 32 + 3;
  const std::size_t triangles = size / 24;
  Bytes body = GradientOf(vertices, triangles, 2);
  for (std::size_t i = 0; i < triangles; ++i)
    body.U32(Number(i % vertices)).U32(Number((i + 1) % vertices)).U32(Number((i + 2) % vertices));
  return Metafile().Bounds(0, 0, 1024, 1024).Record(kGradientFill, body).Build();
}

}  // namespace kelvane::test

#include "metafile/png_decoder.h"

#include <algorithm>
#include <array>
#include <csetjmp>
#include <cstddef>

#include <png.h>

#include "metafile/byte_view.h"

namespace kelvane {
inline namespace metafile {
namespace {

constexpr std::uint32_t kMostPixelsASide = 0x7FFFFFFF;
constexpr std::size_t kMostBytesOfAChunk = std::size_t{1} << 20;  // of those that are kept

std::uint32_t ReadBigEndian32(ByteView& bytes) {
  std::uint32_t value = 0;
  for (const std::uint8_t byte : bytes.Read<std::array<std::uint8_t, 4>>())
    value = value << 8 | byte;
  return value;
}

/// What is decoded to. The library ends an error in its own buffer of a jump, so nothing between
/// that and the call has a destructor.
struct PngTarget {
  ByteView bytes;  // of the file, still to be read
  PixelRectangle part;
  unsigned char* rgb;  // of the part
  unsigned char* row;  // of the whole width
  std::size_t rows = 0;  // of the picture, that have been read
};

void ReadBytes(png_structp png, png_bytep to, png_size_t count) {
  ByteView& bytes = static_cast<PngTarget*>(png_get_io_ptr(png))->bytes;
  const std::span<const unsigned char> read = bytes.Split(count).Bytes();
  if (read.size() < count) png_error(png, "the file ends early");
  std::ranges::copy(read, to);
}

[[noreturn]] void FailDecoding(png_structp png, png_const_charp /*message*/) {
  png_longjmp(png, 1);
}

void SayNothing(png_structp /*png*/, png_const_charp /*message*/) {}

void AskForRgb(png_structp png) {
  png_set_expand(png);
  png_set_scale_16(png);
  png_set_strip_alpha(png);
  png_set_gray_to_rgb(png);
}

}  // namespace
}  // namespace metafile
}  // namespace kelvane

#include "metafile/png_decoder.h"

#include <algorithm>
#include <array>
#include <csetjmp>
#include <cstddef>

#include "base/png_library.h"
#include "metafile/byte_view.h"

namespace kelvane {
inline namespace metafile {
namespace {

constexpr std::uint32_t kMostPixelsASide = 0x7FFFFFFF;
constexpr std::size_t kRgbChannels = 3;
constexpr std::size_t kRgbaChannels = 4;
constexpr std::size_t kMostBytesOfAChunk = std::size_t{1} << 20;  // of those that are kept

std::uint32_t ReadBigEndian32(ByteView& bytes) {
  std::uint32_t value = 0;
  for (const std::uint8_t byte : bytes.Read<std::array<std::uint8_t, 4>>())
    value = value << 8 | byte;
  return value;
}

/// Where bytes come from and pixels go to.
struct PngDecoding {
  ByteView bytes;  // of the file, still to be read
  PngHeader header;
  PixelRectangle part;
  std::size_t channels;        // 3, or 4 with alpha
  unsigned char* rows;         // one of the whole width; of an interlaced file all of them
  unsigned char* pixels;       // of the part
  std::size_t rowsOfPart = 0;  // that are complete
};

void ReadBytes(png_structp png, png_bytep to, png_size_t count) {
  ByteView& bytes = static_cast<PngDecoding*>(png_get_io_ptr(png))->bytes;
  const std::span<const unsigned char> read = bytes.Split(count).Bytes();
  if (read.size() < count) png_error(png, "the file ends early");
  std::ranges::copy(read, to);
}

[[noreturn]] void FailPng(png_structp png, png_const_charp /*message*/) {
  longjmp(png_jmpbuf(png), 1);
}

void IgnorePngWarning(png_structp /*png*/, png_const_charp /*message*/) {}

/// Only what pixels are made of is read, and never kept in more memory than it is worth.
void SetLimits(png_structp png) {
  png_set_user_limits(png, kMostPixelsASide, kMostPixelsASide);
  png_set_chunk_malloc_max(png, kMostBytesOfAChunk);
  png_set_keep_unknown_chunks(png, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
}

void AskForRgb(png_structp png, bool withAlpha) {
  constexpr png_uint_32 kOpaque = 255;
  png_set_expand(png);
  png_set_scale_16(png);
  png_set_gray_to_rgb(png);
  if (withAlpha) {
    png_set_add_alpha(png, kOpaque, PNG_FILLER_AFTER);
  } else {
    png_set_strip_alpha(png);
  }
}

/// Reads rows of the last pass, which is the only one of most files.
void ReadPart(png_structp png, PngDecoding& decoding, std::size_t rowSize) {
  const PixelRectangle& part = decoding.part;
  for (std::size_t y = 0; y < part.top + part.height; ++y) {
    unsigned char* row = decoding.rows + (decoding.header.isInterlaced ? y * rowSize : 0);
    png_read_row(png, row, nullptr);
    if (y < part.top) continue;
    const std::size_t size = decoding.channels * part.width;
    unsigned char* to = decoding.pixels + size * decoding.rowsOfPart++;
    std::copy_n(row + decoding.channels * part.left, size, to);
  }
}

void ReadPng(png_structp png, png_infop info, PngDecoding& decoding) {
  png_set_read_fn(png, &decoding, ReadBytes);
  SetLimits(png);
  png_read_info(png, info);
  AskForRgb(png, decoding.channels == kRgbaChannels);
  const int passes = png_set_interlace_handling(png);
  png_read_update_info(png, info);
  const std::size_t rowSize = decoding.channels * decoding.header.width;
  if (png_get_rowbytes(png, info) != rowSize) return;
  for (int pass = 1; pass < passes; ++pass) {
    for (std::size_t y = 0; y < decoding.header.height; ++y)
      png_read_row(png, decoding.rows + y * rowSize, nullptr);
  }
  ReadPart(png, decoding, rowSize);
}

/// The library leaves an error by a jump to here, so nothing that it jumps over has a destructor.
void ReadPngUntilItFails(png_structp png, png_infop info, PngDecoding& decoding) {
  if (setjmp(png_jmpbuf(png)) == 0) ReadPng(png, info, decoding);
}

std::optional<std::vector<unsigned char>> DecodePixels(std::span<const unsigned char> file,
                                                       const PixelRectangle& part,
                                                       std::size_t channels) {
  const std::optional<PngHeader> header = ReadPngHeader(file);
  if (!header) return std::nullopt;
  const std::size_t rowsAtOnce = header->isInterlaced ? header->height : 1;
  std::vector<unsigned char> rows(channels * std::size_t{header->width} * rowsAtOnce);
  std::vector<unsigned char> pixels(channels * part.width * part.height);
  PngDecoding decoding = {ByteView(file), *header, part, channels, rows.data(), pixels.data()};
  png_structp png =
      png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, FailPng, IgnorePngWarning);
  if (png == nullptr) return std::nullopt;
  png_infop info = png_create_info_struct(png);
  if (info != nullptr) ReadPngUntilItFails(png, info, decoding);
  png_destroy_read_struct(&png, &info, nullptr);
  if (decoding.rowsOfPart == 0) return std::nullopt;
  return pixels;
}

}  // namespace

std::optional<PngHeader> ReadPngHeader(std::span<const unsigned char> file) {
  constexpr std::array<std::uint8_t, 8> kSignature = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  constexpr std::uint32_t kHeaderLength = 13;
  constexpr std::uint32_t kHeaderType = 0x49484452;  // IHDR
  ByteView bytes(file);
  if (bytes.Read<std::array<std::uint8_t, 8>>() != kSignature) return std::nullopt;
  if (ReadBigEndian32(bytes) != kHeaderLength) return std::nullopt;
  if (ReadBigEndian32(bytes) != kHeaderType) return std::nullopt;
  PngHeader header;
  header.width = ReadBigEndian32(bytes);
  header.height = ReadBigEndian32(bytes);
  bytes.Skip(4);  // depth, kind of colours, compression, filter
  header.isInterlaced = bytes.Read<std::uint8_t>() != 0;
  if (bytes.IsShort() || header.width == 0 || header.width > kMostPixelsASide ||
      header.height == 0 || header.height > kMostPixelsASide) {
    return std::nullopt;
  }
  return header;
}

std::optional<std::vector<unsigned char>> DecodePng(std::span<const unsigned char> file,
                                                    const PixelRectangle& part) {
  return DecodePixels(file, part, kRgbChannels);
}

std::optional<std::vector<unsigned char>> DecodePngWithAlpha(std::span<const unsigned char> file,
                                                             const PixelRectangle& part) {
  return DecodePixels(file, part, kRgbaChannels);
}

}  // namespace metafile
}  // namespace kelvane

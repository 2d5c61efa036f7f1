#include "metafile/dib.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "metafile/dib_run_lengths.h"
#include "metafile/direct_pixels.h"
#include "metafile/jpeg_decoder.h"
#include "metafile/jpeg_header.h"
#include "metafile/png_decoder.h"

namespace kelvane {
inline namespace metafile {
namespace {

/// Run-length encoding counts rows from the lowest, so it is never of those stored top first.
bool IsRunsOfRisingRows(const DibHeader& header, DibCompression compression) {
  return header.compression == compression && header.height >= 0;
}

bool IsKnown(const DibHeader& header) {
  switch (header.bitCount) {
    case 1:
    case 24:
      return header.compression == BI_RGB;
    case 4:
      return header.compression == BI_RGB || IsRunsOfRisingRows(header, BI_RLE4);
    case 8:
      return header.compression == BI_RGB || IsRunsOfRisingRows(header, BI_RLE8);
    case 16:
    case 32:
      return header.compression == BI_RGB || header.compression == BI_BITFIELDS;
    default:
      return false;
  }
}

/// @return the bytes that pixels take, as far as a row fills them.
constexpr std::uint64_t BytesOfPixels(std::uint64_t width, unsigned bitCount) {
  return (width * bitCount + 7) / 8;
}

/// @return the bytes from one row to the next.
constexpr std::uint64_t BytesOfRow(std::uint64_t width, unsigned bitCount) {
  return (width * bitCount + 31) / 32 * 4;
}

}  // namespace

std::optional<Dib> Dib::Read(const DibBytes& bytes, std::span<const DibColor> palette,
                             std::optional<std::uint32_t> rows) {
  std::optional<DibHeader> header = ReadDibHeader(bytes.header, bytes.usage, palette);
  if (!header) return std::nullopt;
  Dib dib;
  dib.header_ = *std::move(header);
  dib.pixels_ = bytes.pixels;
  const bool isThere = dib.header_.compression == BI_JPEG  ? dib.HasJpeg()
                       : dib.header_.compression == BI_PNG ? dib.HasPng()
                                                           : dib.HasRows(rows);
  if (!isThere) return std::nullopt;
  return dib;
}

bool Dib::HasJpeg() {
  const auto jpeg = ReadJpegHeader(pixels_);
  if (!jpeg) return false;
  kind_ = Content::kJpeg;
  width_ = jpeg->width;
  height_ = jpeg->height;
  components_ = jpeg->components;
  return true;
}

bool Dib::HasPng() {
  const auto png = ReadPngHeader(pixels_);
  if (!png) return false;
  kind_ = Content::kPng;
  width_ = png->width;
  height_ = png->height;
  return true;
}

// What fills up the last row may be missing.
bool Dib::HasRows(std::optional<std::uint32_t> rows) {
  constexpr std::int64_t kMostRows = std::numeric_limits<std::int32_t>::max();
  if (!IsKnown(header_)) return false;
  const std::int64_t stored = header_.height;
  const std::int64_t height = rows ? std::int64_t{*rows} : stored < 0 ? -stored : stored;
  if (header_.width <= 0 || height <= 0 || height > kMostRows) return false;
  kind_ = BitCount() <= 8 ? Content::kIndexed : Content::kDirect;
  width_ = static_cast<std::size_t>(header_.width);
  height_ = static_cast<std::size_t>(height);
  if (IsRunLengthEncoded()) return true;
  const std::uint64_t last = BytesOfPixels(width_, BitCount());
  if (pixels_.size() < last) return false;
  return (pixels_.size() - last) / BytesOfRow(width_, BitCount()) >= height_ - 1;
}

bool Dib::IsRunLengthEncoded() const {
  return header_.compression == BI_RLE8 || header_.compression == BI_RLE4;
}

bool Dib::IsCompressed() const {
  return header_.compression != BI_RGB && header_.compression != BI_BITFIELDS;
}

std::span<const unsigned char> Dib::Row(std::size_t y) const {
  const std::size_t stored = IsTopDown() ? y : height_ - 1 - y;
  return pixels_.subspan(stored * static_cast<std::size_t>(BytesOfRow(width_, BitCount())),
                         static_cast<std::size_t>(BytesOfPixels(width_, BitCount())));
}

namespace {

template <unsigned bitCount>
void UnpackRow(const unsigned char* row, std::size_t left, std::size_t width,
               unsigned char* indexes) {
  constexpr unsigned kPixels = 8 / bitCount;  // in a byte
  for (std::size_t i = 0; i < width; ++i) {
    const std::size_t x = left + i;
    const unsigned shift = 8 - bitCount - static_cast<unsigned>(x % kPixels) * bitCount;
    indexes[i] = static_cast<unsigned char>(row[x / kPixels] >> shift & ((1U << bitCount) - 1));
  }
}

/// Writes the numbers of a row's pixels, a byte each.
void UnpackIndexes(const Dib& dib, std::size_t y, std::size_t left, std::size_t width,
                   unsigned char* indexes) {
  const unsigned char* row = dib.Row(y).data();
  switch (dib.BitCount()) {
    case 1:
      return UnpackRow<1>(row, left, width, indexes);
    case 4:
      return UnpackRow<4>(row, left, width, indexes);
    default:
      std::copy_n(row + left, width, indexes);
  }
}

std::vector<unsigned char> IndexedRgb(const Dib& dib, const PixelRectangle& part) {
  std::array<DibColor, 256> colors{};  // for any byte, so that none need be looked at
  std::ranges::copy(dib.Colors(), colors.begin());
  std::vector<unsigned char> rgb(3 * part.width * part.height);
  unsigned char* next = rgb.data();
  for (const unsigned char index : DecodeIndexes(dib, part).indexes)
    next = std::ranges::copy(colors[index], next).out;
  return rgb;
}

/// The pixels of rows of a part, taken apart by one who knows their masks.
class DirectRows {
 public:
  DirectRows(const Dib& dib, const PixelRectangle& part)
      : dib_(dib), part_(part), pixels_(dib.BitCount(), dib.Masks()) {}

  void ToRgb(std::size_t y, unsigned char* rgb) const { pixels_.ToRgb(Start(y), part_.width, rgb); }
  void ToAlpha(std::size_t y, unsigned char* alpha) const {
    pixels_.ToAlpha(Start(y), part_.width, alpha);
  }

 private:
  [[nodiscard]] const unsigned char* Start(std::size_t y) const {
    return dib_.Row(part_.top + y).data() + part_.left * pixels_.BytesPerPixel();
  }

  const Dib& dib_;
  const PixelRectangle& part_;
  DirectPixels pixels_;
};

std::vector<unsigned char> DirectRgb(const Dib& dib, const PixelRectangle& part) {
  const DirectRows rows(dib, part);
  std::vector<unsigned char> rgb(3 * part.width * part.height);
  for (std::size_t y = 0; y < part.height; ++y)
    rows.ToRgb(y, rgb.data() + 3 * part.width * y);
  return rgb;
}

/// Takes out of a colour the alpha that it was multiplied by.
void DivideByAlpha(unsigned char* rgb, unsigned alpha) {
  if (alpha == 255) return;
  for (std::size_t i = 0; i < 3; ++i) {
    const unsigned color = std::min<unsigned>(rgb[i], alpha);
    rgb[i] = alpha == 0 ? 0 : static_cast<unsigned char>((color * 255 + alpha / 2) / alpha);
  }
}

}  // namespace

std::optional<std::vector<unsigned char>> DecodeRgb(const Dib& dib, const PixelRectangle& part) {
  switch (dib.Kind()) {
    case Dib::Content::kIndexed:
      return IndexedRgb(dib, part);
    case Dib::Content::kDirect:
      return DirectRgb(dib, part);
    case Dib::Content::kJpeg:
      return DecodeJpeg(dib.File(), part);
    case Dib::Content::kPng:
      return DecodePng(dib.File(), part);
  }
  return std::nullopt;
}

bool IsGray(const Dib& dib, const PixelRectangle& part) {
  const DirectRows rows(dib, part);
  std::vector<unsigned char> rgb(3 * part.width);
  for (std::size_t y = 0; y < part.height; ++y) {
    rows.ToRgb(y, rgb.data());
    unsigned differences = 0;
    for (std::size_t i = 0; i < rgb.size(); i += 3)
      differences |= (rgb[i] ^ rgb[i + 1]) | (rgb[i] ^ rgb[i + 2]);
    if (differences != 0) return false;
  }
  return true;
}

std::vector<unsigned char> DecodeGray(const Dib& dib, const PixelRectangle& part) {
  const DirectRows rows(dib, part);
  std::vector<unsigned char> rgb(3 * part.width);
  std::vector<unsigned char> gray(part.width * part.height);
  unsigned char* next = gray.data();
  for (std::size_t y = 0; y < part.height; ++y) {
    rows.ToRgb(y, rgb.data());
    for (std::size_t i = 0; i < rgb.size(); i += 3)
      *next++ = rgb[i];
  }
  return gray;
}

IndexedPixels DecodeIndexes(const Dib& dib, const PixelRectangle& part) {
  if (dib.IsRunLengthEncoded()) return DecodeRunLengths(dib, part);
  IndexedPixels pixels;
  pixels.indexes.resize(part.width * part.height);
  for (std::size_t y = 0; y < part.height; ++y) {
    UnpackIndexes(dib, part.top + y, part.left, part.width, pixels.indexes.data() + part.width * y);
  }
  return pixels;
}

std::vector<unsigned char> DecodePackedIndexes(const Dib& dib, const PixelRectangle& part) {
  const std::size_t firstBit = part.left * dib.BitCount();
  const std::size_t rowBits = part.width * dib.BitCount();
  const std::size_t rowSize = (rowBits + 7) / 8;
  const unsigned shift = firstBit % 8;
  const auto lastByte = static_cast<unsigned char>(0xFF00U >> ((rowBits - 1) % 8 + 1));
  std::vector<unsigned char> packed(rowSize * part.height);
  unsigned char* next = packed.data();
  for (std::size_t y = 0; y < part.height; ++y, next += rowSize) {
    const std::span<const unsigned char> row = dib.Row(part.top + y).subspan(firstBit / 8);
    for (std::size_t i = 0; i < rowSize; ++i) {
      const unsigned following = i + 1 < row.size() ? row[i + 1] : 0;
      next[i] = static_cast<unsigned char>((unsigned{row[i]} << 8 | following) << shift >> 8);
    }
    next[rowSize - 1] &= lastByte;
  }
  return packed;
}

std::optional<TranslucentPixels> DecodePremultiplied(const Dib& dib, const PixelRectangle& part) {
  if (dib.Kind() != Dib::Content::kDirect || dib.BitCount() != 32 || dib.Masks().alpha == 0) {
    return std::nullopt;
  }
  const DirectRows rows(dib, part);
  TranslucentPixels pixels;
  pixels.rgb.resize(3 * part.width * part.height);
  pixels.alpha.resize(part.width * part.height);
  for (std::size_t y = 0; y < part.height; ++y) {
    rows.ToRgb(y, pixels.rgb.data() + 3 * part.width * y);
    rows.ToAlpha(y, pixels.alpha.data() + part.width * y);
  }
  for (std::size_t i = 0; i < pixels.alpha.size(); ++i)
    DivideByAlpha(pixels.rgb.data() + 3 * i, pixels.alpha[i]);
  return pixels;
}

}  // namespace metafile
}  // namespace kelvane

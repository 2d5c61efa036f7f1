#include "platform/trace/trace_image.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "platform/quartz/cg_image_rows.h"

namespace kelvane {
namespace {

constexpr std::size_t kMostPixelsShown = 64;

bool IsPlain(const CGImage& image) {
  return !image.provider->MakesBytes() && !image.isMask && image.indexed == nullptr &&
         image.mask == nullptr && image.encoding == CGImage::Encoding::kPixels;
}

std::string KindOf(const CGImage& image) {
  if (image.isMask) return " mask";
  if (image.indexed != nullptr) return " indexed " + std::to_string(image.bitsPerComponent);
  const bool isJpeg = image.encoding == CGImage::Encoding::kJpeg;
  return std::string(isJpeg ? " jpeg" : "") + (image.components == 1 ? " gray" : " rgb");
}

std::string SizeOf(const CGImage& image) {
  return ' ' + std::to_string(image.width) + ' ' + std::to_string(image.height);
}

/// @param digits  of the number, from its end.
std::string Hex(std::uint32_t number, unsigned digits) {
  std::string text;
  while (digits != 0)
    text += "0123456789abcdef"[number >> 4 * --digits & 0xF];
  return text;
}

std::string Hash(std::span<const unsigned char> bytes) {
  std::uint32_t hash = 0x811C9DC5;  // FNV-1a
  for (const unsigned char byte : bytes)
    hash = (hash ^ byte) * 0x01000193;
  return " hash " + Hex(hash, 8);
}

std::string Rows(std::span<const unsigned char> bytes, std::size_t rowSize) {
  std::string text;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (i % rowSize == 0) text += ' ';
    text += Hex(bytes[i], 2);
  }
  return text;
}

/// @return what the bytes are, after a word for it; nullopt when there are too few of them.
std::optional<std::string> BytesLine(std::string_view words, const CGImage& image) {
  std::string line(words);
  if (image.encoding == CGImage::Encoding::kJpeg) {
    const CGProvidedBytes provided = image.provider->Provide();
    if (provided.View().empty()) return std::nullopt;
    line += Hash(provided.View());
  } else {
    CGImageRows rows(image);
    if (!rows.AreWhole()) return std::nullopt;
    const bool isSmall = image.width <= kMostPixelsShown / image.height;
    line += isSmall ? Rows(rows.Packed(), image.RowSize()) : Hash(rows.Packed());
  }
  return line + '\n';
}

}  // namespace

std::string WordsOfImage(const CGImage& image) {
  std::string words = "image" + SizeOf(image) + KindOf(image);
  if (IsPlain(image)) return words;
  if (image.interpolate) words += " smooth";
  if (image.mask != nullptr) {
    words += (image.mask->isMask ? " masked" : " soft-masked") + SizeOf(*image.mask);
  }
  return words;
}

std::optional<std::string> LinesOfImage(const CGImage& image) {
  if (IsPlain(image)) return std::string();
  auto lines = BytesLine("  bytes", image);
  if (lines && image.indexed != nullptr) {
    *lines += "  colors" + Rows(image.indexed->table, 3) + '\n';
  }
  if (!lines || image.mask == nullptr) return lines;
  const auto mask = BytesLine("  mask", *image.mask);
  return mask ? std::optional(*lines + *mask) : std::nullopt;
}

}  // namespace kelvane

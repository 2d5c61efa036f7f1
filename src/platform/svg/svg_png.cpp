#include "platform/svg/svg_png.h"

#include <algorithm>
#include <string_view>

#include "base/crc32.h"

namespace kelvane {
namespace {

constexpr std::string_view kSignature = "\x89PNG\r\n\x1A\n";
constexpr unsigned char kNoFilter = 0;  // PNG, 9.2
constexpr unsigned char kDifferenceFromAbove = 2;

void AppendNumber(std::string& file, std::size_t number) {
  for (int shift = 24; shift >= 0; shift -= 8)
    file += static_cast<char>(number >> shift & 0xFF);
}

std::string_view TextOf(std::span<const unsigned char> bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

void AppendChunk(std::string& file, std::string_view type, std::string_view data) {
  AppendNumber(file, data.size());
  const std::size_t start = file.size();
  file.append(type).append(data);
  AppendNumber(file, Crc32({reinterpret_cast<const unsigned char*>(file.data()) + start,
                            file.size() - start}));
}

std::string HeaderOf(const PngPicture& picture) {
  std::string header;
  AppendNumber(header, picture.width);
  AppendNumber(header, picture.height);
  header += static_cast<char>(picture.bits);
  header += static_cast<char>(picture.color);
  return header.append(3, '\0');  // deflated, filtered row by row, not interlaced
}

/// Each row behind its filter. One that repeats the row above is all zeros; no other is filtered,
/// for flat pictures, which most are, only grow by it.
std::vector<unsigned char> FilteredRows(const PngPicture& picture, std::size_t rowSize) {
  std::vector<unsigned char> filtered((rowSize + 1) * picture.height);
  auto to = filtered.begin();
  std::span<const unsigned char> above;
  for (std::size_t y = 0; y < picture.height; ++y) {
    const auto row = picture.rows.subspan(y * rowSize, rowSize);
    const bool isRepeated = std::ranges::equal(row, above);
    *to++ = isRepeated ? kDifferenceFromAbove : kNoFilter;
    if (!isRepeated) std::ranges::copy(row, to);
    to += static_cast<std::ptrdiff_t>(rowSize);
    above = row;
  }
  return filtered;
}

}  // namespace

std::size_t PngComponents(PngColor color) {
  switch (color) {
    case PngColor::kRgb:
      return 3;
    case PngColor::kRgba:
      return 4;
    case PngColor::kGrey:
    case PngColor::kIndexed:
      break;
  }
  return 1;
}

std::size_t PngRowSize(const PngPicture& picture) {
  return (picture.width * PngComponents(picture.color) * picture.bits + 7) / 8;
}

std::string PngFile(const PngPicture& picture, Deflater& deflater) {
  constexpr std::size_t kMostASide = 0x7FFFFFFF;
  if (picture.width > kMostASide || picture.height > kMostASide) return {};
  const auto rows = FilteredRows(picture, PngRowSize(picture));
  const DeflatedBytes data =
      picture.isEnlarged ? deflater.DeflateQuickly(rows) : deflater.Deflate(rows);
  if (data.size > kMostASide) return {};
  std::string file(kSignature);
  AppendChunk(file, "IHDR", HeaderOf(picture));
  if (!picture.colors.empty()) AppendChunk(file, "PLTE", TextOf(picture.colors));
  if (!picture.alphas.empty()) AppendChunk(file, "tRNS", TextOf(picture.alphas));
  AppendChunk(file, "IDAT", TextOf(data.View()));
  AppendChunk(file, "IEND", {});
  return file;
}

}  // namespace kelvane

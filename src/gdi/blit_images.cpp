#include "gdi/blit_images.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include "gdi/raster_operation.h"
#include "gdi/sample_images.h"
#include "platform/quartz/cg_data_provider.h"

namespace kelvane {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::uint8_t kWhiteChannel = 255;

RgbColor AsRgb(DibColor color) {
  return {color[0], color[1], color[2]};
}

RgbColor Apply(const Coloring& coloring, RgbColor source) {
  return Combine(coloring.operation, coloring.paint, source, coloring.ground);
}

bool ChangesNothing(const Coloring& coloring) {
  return AreAlike(coloring.operation, SRCCOPY);
}

/// What a coloring makes of each value that a channel can have.
using ChannelTable = std::array<std::uint8_t, 256>;

ChannelTable TableOf(const Coloring& coloring, std::uint8_t RgbColor::*channel) {
  ChannelTable table{};
  for (std::size_t value = 0; value < table.size(); ++value)
    table[value] = Combine(coloring.operation, coloring.paint.*channel,
                           static_cast<std::uint8_t>(value), coloring.ground.*channel);
  return table;
}

void Recolor(Bytes& rgb, const Coloring& coloring) {
  if (ChangesNothing(coloring)) return;
  const ChannelTable red = TableOf(coloring, &RgbColor::red);
  const ChannelTable green = TableOf(coloring, &RgbColor::green);
  const ChannelTable blue = TableOf(coloring, &RgbColor::blue);
  for (std::size_t i = 0; i + 2 < rgb.size(); i += 3) {
    rgb[i] = red[rgb[i]];
    rgb[i + 1] = green[rgb[i + 1]];
    rgb[i + 2] = blue[rgb[i + 2]];
  }
}

template <class Make>
CFOwned<const CGDataProvider> Making(Make make) {
  return CFOwned<const CGDataProvider>(CGDataProviderCreateMaking(std::move(make)));
}

CFOwned<const CGColorSpace> IndexedSpace(std::span<const DibColor> colors,
                                         const Coloring& coloring) {
  Bytes table;
  for (const DibColor color : colors) {
    const RgbColor changed = Apply(coloring, AsRgb(color));
    table.insert(table.end(), {changed.red, changed.green, changed.blue});
  }
  const CFOwned<const CGColorSpace> base(CGColorSpaceCreateDeviceRGB());
  return CFOwned<const CGColorSpace>(
      CGColorSpaceCreateIndexed(base.get(), colors.size() - 1, table.data()));
}

using Parts = std::vector<DibPart>;

bool IsIndexed(const DibPart& part) {
  return part.dib.Kind() == Dib::Content::kIndexed;
}
bool IsDirect(const DibPart& part) {
  return part.dib.Kind() == Dib::Content::kDirect;
}

bool AreIndexedAlike(const Parts& parts) {
  const Dib& first = parts.front().dib;
  return std::ranges::all_of(parts, [&](const DibPart& part) {
    return IsIndexed(part) && part.dib.BitCount() == first.BitCount() &&
           std::ranges::equal(part.dib.Colors(), first.Colors()) &&
           !(parts.size() > 1 && part.dib.IsRunLengthEncoded());
  });
}

bool AreGray(const Parts& parts) {
  return std::ranges::all_of(parts, [](const DibPart& part) {
    return IsDirect(part) && IsGray(part.dib, part.rectangle);
  });
}

std::size_t RowsOf(const Parts& parts) {
  std::size_t rows = 0;
  for (const DibPart& part : parts)
    rows += part.rectangle.height;
  return rows;
}

/// @param decode  of a part. @return the parts' bytes, one below the other.
template <class Decode>
Bytes Joined(const Parts& parts, Decode decode) {
  Bytes joined = decode(parts.front());
  for (std::size_t i = 1; i < parts.size(); ++i) {
    const Bytes next = decode(parts[i]);
    joined.insert(joined.end(), next.begin(), next.end());
  }
  return joined;
}

SampleLayout LayoutOf(const Parts& parts, CFOwned<const CGColorSpace> space, bool isSmooth,
                      std::size_t bits = 8) {
  return {parts.front().rectangle.width, RowsOf(parts), bits, std::move(space), isSmooth};
}

CFOwned<const CGColorSpace> Gray() {
  return CFOwned<const CGColorSpace>(CGColorSpaceCreateDeviceGray());
}
CFOwned<const CGColorSpace> Rgb() {
  return CFOwned<const CGColorSpace>(CGColorSpaceCreateDeviceRGB());
}

CFOwned<const CGImage> IndexedImage(const Parts& parts, const Coloring& coloring, bool isSmooth) {
  const Dib& first = parts.front().dib;
  const bool isPacked = !first.IsRunLengthEncoded();
  const auto decode = [isPacked](const DibPart& part) {
    return isPacked ? DecodePackedIndexes(part.dib, part.rectangle)
                    : DecodeIndexes(part.dib, part.rectangle).indexes;
  };
  const SampleLayout layout = LayoutOf(parts, IndexedSpace(first.Colors(), coloring), isSmooth,
                                       isPacked ? first.BitCount() : 8);
  return ImageOfSamples(layout, *Making([parts, decode] { return Joined(parts, decode); }));
}

CFOwned<const CGImage> GrayImage(const Parts& parts, bool isSmooth) {
  const auto decode = [](const DibPart& part) { return DecodeGray(part.dib, part.rectangle); };
  return ImageOfSamples(LayoutOf(parts, Gray(), isSmooth),
                        *Making([parts, decode] { return Joined(parts, decode); }));
}

CFOwned<const CGImage> RgbImage(const Parts& parts, const Coloring& coloring, bool isSmooth) {
  const auto decode = [](const DibPart& part) {
    return DecodeRgb(part.dib, part.rectangle).value_or(Bytes());
  };
  const auto make = [parts, coloring, decode] {
    Bytes rgb = Joined(parts, decode);
    Recolor(rgb, coloring);
    return rgb;
  };
  return ImageOfSamples(LayoutOf(parts, Rgb(), isSmooth), *Making(make));
}

/// Files are decoded at once: nobody can tell before whether they can be read.
CFOwned<const CGImage> DecodedImage(const DibPart& part, const Coloring& coloring, bool isSmooth) {
  std::optional<Bytes> rgb = DecodeRgb(part.dib, part.rectangle);
  if (!rgb) return nullptr;
  Recolor(*rgb, coloring);
  return ImageOfRgb(part.rectangle.width, part.rectangle.height, *std::move(rgb), isSmooth);
}

std::optional<std::uint8_t> Whiteness(DibColor color) {
  if (color[0] != color[1] || color[0] != color[2]) return std::nullopt;
  if (color[0] != 0 && color[0] != kWhiteChannel) return std::nullopt;
  return std::uint8_t{color[0] == kWhiteChannel};
}

std::optional<Bytes> WhiteIndexes(const Blit& blit) {
  constexpr std::uint8_t kOther = 2;
  Bytes whiteness;
  for (const DibColor color : blit.dib.Colors())
    whiteness.push_back(Whiteness(color).value_or(kOther));
  Bytes pixels = DecodeIndexes(blit.dib, blit.part).indexes;
  for (std::uint8_t& pixel : pixels) {
    pixel = whiteness[pixel];
    if (pixel == kOther) return std::nullopt;
  }
  return pixels;
}

/// Row by row, for most pictures have another colour in the first.
std::optional<Bytes> WhiteDirectPixels(const Blit& blit) {
  Bytes pixels;
  PixelRectangle row = blit.part;
  row.height = 1;
  for (; row.top < blit.part.top + blit.part.height; ++row.top) {
    const std::optional<Bytes> rgb = DecodeRgb(blit.dib, row);
    if (!rgb) return std::nullopt;
    for (std::size_t i = 0; i + 2 < rgb->size(); i += 3) {
      const auto whiteness = Whiteness({(*rgb)[i], (*rgb)[i + 1], (*rgb)[i + 2]});
      if (!whiteness) return std::nullopt;
      pixels.push_back(*whiteness);
    }
  }
  return pixels;
}

}  // namespace

CFOwned<const CGImage> JpegOf(const Blit& blit) {
  if (blit.dib.Kind() != Dib::Content::kJpeg) return nullptr;
  const auto file = blit.dib.File();
  const CFOwned<const CGDataProvider> provider(
      CGDataProviderCreateWithData(nullptr, file.data(), file.size(), nullptr));
  return CFOwned<const CGImage>(CGImageCreateWithJPEG(
      blit.dib.Width(), blit.dib.Height(), blit.dib.Components(), provider.get(), blit.isSmooth));
}

CFOwned<const CGImage> ImageOf(const std::vector<DibPart>& parts, const Coloring& coloring,
                               bool isSmooth) {
  if (AreIndexedAlike(parts)) return IndexedImage(parts, coloring, isSmooth);
  if (!IsIndexed(parts.front()) && !IsDirect(parts.front())) {
    return DecodedImage(parts.front(), coloring, isSmooth);
  }
  if (ChangesNothing(coloring) && AreGray(parts)) return GrayImage(parts, isSmooth);
  return RgbImage(parts, coloring, isSmooth);
}

CFOwned<const CGImage> ImageOf(const Blit& blit, std::vector<std::uint8_t> rgb) {
  return ImageOfRgb(blit.part.width, blit.part.height, std::move(rgb), blit.isSmooth);
}

CFOwned<const CGImage> StencilOf(const std::vector<std::uint8_t>& shown, std::size_t width,
                                 std::size_t height) {
  const std::size_t rowSize = BytesOfSamples(width, 1);
  Bytes bits(rowSize * height);
  for (std::size_t y = 0; y < height; ++y) {
    for (std::size_t x = 0; x < width; ++x) {
      const unsigned bit = 0x80U >> (x % 8);
      if (shown[y * width + x] == 0) bits[y * rowSize + x / 8] |= static_cast<std::uint8_t>(bit);
    }
  }
  const auto provider = ProviderOf(std::move(bits));
  return CFOwned<const CGImage>(
      CGImageMaskCreate(width, height, 1, 1, rowSize, provider.get(), nullptr, false));
}

CFOwned<const CGImage> SoftMaskOf(std::vector<std::uint8_t> alpha, const Blit& blit) {
  return ImageOfGray(blit.part.width, blit.part.height, std::move(alpha), blit.isSmooth);
}

std::optional<std::vector<std::uint8_t>> WhitePixels(const Blit& blit) {
  switch (blit.dib.Kind()) {
    case Dib::Content::kIndexed:
      return WhiteIndexes(blit);
    case Dib::Content::kDirect:
      return WhiteDirectPixels(blit);
    case Dib::Content::kJpeg:
    case Dib::Content::kPng:
      break;
  }
  return std::nullopt;
}

std::optional<std::vector<std::uint8_t>> PixelsBut(const Blit& blit, RgbColor color) {
  const std::optional<Bytes> rgb = DecodeRgb(blit.dib, blit.part);
  if (!rgb) return std::nullopt;
  Bytes shown;
  shown.reserve(rgb->size() / 3);
  for (std::size_t i = 0; i + 2 < rgb->size(); i += 3)
    shown.push_back(RgbColor{(*rgb)[i], (*rgb)[i + 1], (*rgb)[i + 2]} == color ? 0 : 1);
  return shown;
}

std::optional<RgbColor> FirstPixel(const Blit& blit) {
  const std::optional<Bytes> rgb = DecodeRgb(blit.dib, {blit.part.left, blit.part.top, 1, 1});
  if (!rgb) return std::nullopt;
  return RgbColor{(*rgb)[0], (*rgb)[1], (*rgb)[2]};
}

}  // namespace kelvane

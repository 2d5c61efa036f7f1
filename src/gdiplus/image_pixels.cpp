#include "gdiplus/image_pixels.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <utility>
#include <variant>
#include <vector>

#include "gdi/blit_images.h"
#include "gdi/sample_images.h"
#include "gdiplus/pixel_formats.h"
#include "metafile/bmp_file.h"
#include "metafile/gif_decoder.h"
#include "metafile/jpeg_decoder.h"
#include "metafile/jpeg_header.h"
#include "metafile/png_decoder.h"
#include "metafile/tiff_decoder.h"
#include "platform/quartz/cg_data_provider.h"

namespace kelvane::gdiplus {
namespace {

using ImageBytes = std::vector<unsigned char>;
using OwnedImage = CFOwned<const CGImage>;

constexpr std::size_t kRgba = 4;
constexpr std::size_t kMostPixelsOfAnImage = std::size_t{1} << 40;  // so that bytes can be counted
constexpr unsigned char kOpaquePixel = 255;

struct ImageSize {
  std::size_t width;
  std::size_t height;
};

OwnedImage ImageOfRgba(ImageSize size, const ImageBytes& rgba, bool isSmooth) {
  ImageBytes rgb;
  ImageBytes alpha;
  rgb.reserve(rgba.size() / kRgba * 3);
  alpha.reserve(rgba.size() / kRgba);
  for (std::size_t i = 0; i + kRgba <= rgba.size(); i += kRgba) {
    rgb.insert(rgb.end(), {rgba[i], rgba[i + 1], rgba[i + 2]});
    alpha.push_back(rgba[i + 3]);
  }
  OwnedImage image = ImageOfRgb(size.width, size.height, std::move(rgb), isSmooth);
  const auto isOpaque = [](unsigned char a) { return a == kOpaquePixel; };
  if (image == nullptr || std::ranges::all_of(alpha, isOpaque)) return image;
  const OwnedImage mask = ImageOfGray(size.width, size.height, std::move(alpha), isSmooth);
  return OwnedImage(CGImageCreateWithMask(image.get(), mask.get()));
}

bool AffordBytes(Graphics& graphics, std::uint64_t bytes) {
  if (graphics.canvas->AffordPixels(bytes)) return true;
  graphics.shortfalls.Add(Shortfall::kBitmapTooLarge);
  return false;
}

bool AffordPixels(Graphics& graphics, ImageSize size) {
  const bool isSmall = size.width <= kMostPixelsOfAnImage / size.height;
  const std::size_t pixels = isSmall ? size.width * size.height : kMostPixelsOfAnImage;
  return AffordBytes(graphics, kRgba * pixels);
}

OwnedImage Unreadable(Graphics& graphics) {
  graphics.shortfalls.Add(Shortfall::kUnreadableBitmap);
  return nullptr;
}

bool IsSmooth(const Graphics& graphics) {
  return graphics.state.interpolation != EmfPlusInterpolationMode::kNearestNeighbor;
}

/// Pixels in colours of a palette stay the numbers that they are.
OwnedImage IndexedImage(const EmfPlusPixels& pixels, bool isSmooth) {
  const unsigned bits = EmfPlusBitsPerPixel(pixels.format);
  const std::size_t count = std::size_t{1} << bits;
  ImageBytes table(3 * count);
  for (std::size_t i = 0; i < std::min(count, pixels.palette.size()); ++i) {
    const Argb& color = pixels.palette[i];
    table[3 * i] = color.red;
    table[3 * i + 1] = color.green;
    table[3 * i + 2] = color.blue;
  }
  const CFOwned<const CGColorSpace> base(CGColorSpaceCreateDeviceRGB());
  const CFOwned<const CGColorSpace> space(
      CGColorSpaceCreateIndexed(base.get(), count - 1, table.data()));
  return OwnedImage(CGImageCreate(pixels.width, pixels.height, bits, bits, pixels.stride,
                                  space.get(), 0,
                                  ProviderOf({pixels.rows.begin(), pixels.rows.end()}).get(),
                                  nullptr, isSmooth, kCGRenderingIntentDefault));
}

OwnedImage ImageOf(Graphics& graphics, const EmfPlusPixels& pixels) {
  const bool isOpaque =
      std::ranges::all_of(pixels.palette, [](Argb color) { return color.alpha == kOpaquePixel; });
  if (IsEmfPlusIndexed(pixels.format) && isOpaque) {
    OwnedImage image = IndexedImage(pixels, IsSmooth(graphics));
    return image != nullptr ? std::move(image) : Unreadable(graphics);
  }
  const ImageSize size = {pixels.width, pixels.height};
  if (size.width == 0 || size.height == 0) return Unreadable(graphics);
  if (!AffordPixels(graphics, size)) return nullptr;
  const auto rgba = RgbaOf(pixels);
  return rgba ? ImageOfRgba(size, *rgba, IsSmooth(graphics)) : Unreadable(graphics);
}

OwnedImage Decoded(Graphics& graphics, std::span<const unsigned char> file,
                   const PngHeader& header) {
  if (!AffordPixels(graphics, {header.width, header.height})) return nullptr;
  const auto rgba = DecodePngWithAlpha(file, {0, 0, header.width, header.height});
  return rgba ? ImageOfRgba({header.width, header.height}, *rgba, IsSmooth(graphics))
              : Unreadable(graphics);
}

OwnedImage Decoded(Graphics& graphics, std::span<const unsigned char> file,
                   const GifHeader& header) {
  const ImageSize size = {header.width, header.height};
  if (!AffordPixels(graphics, size)) return nullptr;
  const auto rgba = DecodeGifWithAlpha(file);
  return rgba ? ImageOfRgba(size, *rgba, IsSmooth(graphics)) : Unreadable(graphics);
}

OwnedImage Decoded(Graphics& graphics, std::span<const unsigned char> /*file*/,
                   const DibBytes& bytes) {
  const auto dib = Dib::Read(bytes);
  if (!dib) return Unreadable(graphics);
  const ImageSize size = {dib->Width(), dib->Height()};
  if (dib->IsCompressed() && !AffordPixels(graphics, size)) return nullptr;
  OwnedImage image =
      kelvane::ImageOf({{*dib, {0, 0, size.width, size.height}}}, {}, IsSmooth(graphics));
  return image != nullptr ? std::move(image) : Unreadable(graphics);
}

OwnedImage Decoded(Graphics& graphics, std::span<const unsigned char> file,
                   const TiffHeader& header) {
  const ImageSize size = {header.width, header.height};
  if (!AffordPixels(graphics, size)) return nullptr;
  if (!AffordBytes(graphics, header.bytesToDecode)) return nullptr;
  const auto rgba = DecodeTiffWithAlpha(file);
  return rgba ? ImageOfRgba(size, *rgba, IsSmooth(graphics)) : Unreadable(graphics);
}

/// For a surface that takes no files.
OwnedImage DecodedJpeg(Graphics& graphics, std::span<const unsigned char> file,
                       const JpegHeader& header) {
  const ImageSize size = {header.width, header.height};
  if (!AffordPixels(graphics, size)) return nullptr;
  auto rgb = DecodeJpeg(file, {0, 0, size.width, size.height});
  if (!rgb) return Unreadable(graphics);
  return ImageOfRgb(size.width, size.height, std::move(*rgb), IsSmooth(graphics));
}

OwnedImage Decoded(Graphics& graphics, std::span<const unsigned char> file,
                   const JpegHeader& header) {
  if (!graphics.canvas->Surface().Capabilities().holdsJpeg)
    return DecodedJpeg(graphics, file, header);
  return OwnedImage(CGImageCreateWithJPEG(header.width, header.height, header.components,
                                          ProviderOf({file.begin(), file.end()}).get(),
                                          IsSmooth(graphics)));
}

OwnedImage Decoded(Graphics& graphics, std::span<const unsigned char> /*file*/,
                   std::monostate /*unknown*/) {
  return Unreadable(graphics);
}

/// What a file says of itself.
using FileHeader =
    std::variant<std::monostate, PngHeader, GifHeader, DibBytes, TiffHeader, JpegHeader>;

FileHeader ReadFileHeader(std::span<const unsigned char> file) {
  if (const auto png = ReadPngHeader(file)) return *png;
  if (const auto gif = ReadGifHeader(file)) return *gif;
  if (const auto bmp = ReadBmpFile(file)) return *bmp;
  if (const auto tiff = ReadTiffHeader(file)) return *tiff;
  if (const auto jpeg = ReadJpegHeader(file)) return *jpeg;
  return {};
}

OwnedImage ImageOf(Graphics& graphics, const EmfPlusImageFile& image) {
  return std::visit([&](const auto& header) { return Decoded(graphics, image.bytes, header); },
                    ReadFileHeader(image.bytes));
}

ImageKey KeyOf(const EmfPlusPixels& pixels, bool isSmooth) {
  return {pixels.rows.data(), pixels.rows.size(), pixels.width, pixels.stride, isSmooth};
}

ImageKey KeyOf(const EmfPlusImageFile& file, bool isSmooth) {
  return {file.bytes.data(), file.bytes.size(), 0, 0, isSmooth};
}

template <class Image>
OwnedImage Remembered(Graphics& graphics, const Image& image) {
  const ImageKey key = KeyOf(image, IsSmooth(graphics));
  const auto known = graphics.images.find(key);
  if (known != graphics.images.end()) {
    const auto& [made, lack] = known->second;
    if (made != nullptr) return CFShare(made.get());
    graphics.shortfalls.Add(lack);
    return nullptr;
  }
  OwnedImage made = ImageOf(graphics, image);
  const bool isTooLarge = graphics.shortfalls.Has(Shortfall::kBitmapTooLarge);
  const Shortfall lack = isTooLarge ? Shortfall::kBitmapTooLarge : Shortfall::kUnreadableBitmap;
  graphics.images.emplace(key, KnownImage{made != nullptr ? CFShare(made.get()) : nullptr, lack});
  return made;
}

}  // namespace

bool IsReadable(const EmfPlusImageFile& image) {
  return !std::holds_alternative<std::monostate>(ReadFileHeader(image.bytes));
}

CFOwned<const CGImage> ImageFrom(Graphics& graphics, const EmfPlusImage& image) {
  if (graphics.canvas == nullptr) return nullptr;
  if (const auto* pixels = std::get_if<EmfPlusPixels>(&image)) return Remembered(graphics, *pixels);
  if (const auto* file = std::get_if<EmfPlusImageFile>(&image)) return Remembered(graphics, *file);
  return nullptr;
}

}  // namespace kelvane::gdiplus

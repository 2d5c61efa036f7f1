#include "platform/svg/svg_image.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

#include "base/base64.h"
#include "platform/quartz/cg_image_pixel.h"
#include "platform/quartz/cg_image_rows.h"
#include "platform/svg/svg_color.h"
#include "platform/svg/svg_number.h"

namespace kelvane {
namespace {

using Bytes = std::span<const unsigned char>;

constexpr CGColor kWhite = {1, 1, 1, 1};
constexpr CGColor kBlack = {0, 0, 0, 1};

bool IsPixels(const CGImage& image) {
  return image.encoding == CGImage::Encoding::kPixels;
}

/// An image and its mask, which is as large, in one.
std::vector<unsigned char> MaskedPixels(const CGImage& image, const CGImageRows& rows,
                                        const CGImageRows& maskRows) {
  const CGImage& mask = *image.mask;
  std::vector<unsigned char> pixels;
  pixels.reserve(image.width * image.height * 4);
  for (std::size_t y = 0; y < image.height; ++y) {
    const Bytes row = rows.Row(y);
    const Bytes maskRow = maskRows.Row(y);
    for (std::size_t x = 0; x < image.width; ++x) {
      const auto [red, green, blue] = ColorInRow(image, row, x);
      pixels.insert(pixels.end(), {red, green, blue, AlphaInRow(mask, maskRow, x)});
    }
  }
  return pixels;
}

/// The table of an image of numbers, with a colour for each that it has.
std::vector<unsigned char> ColorsOf(const CGImage& image, Bytes rows) {
  const std::size_t bits = image.bitsPerComponent;
  const std::size_t most = std::size_t{1} << bits;
  const std::size_t used = bits == 8 ? std::size_t{*std::ranges::max_element(rows)} + 1 : most;
  std::vector<unsigned char> colors = image.indexed->table;
  colors.resize(std::clamp(colors.size() / 3, used, most) * 3);
  return colors;
}

std::uint64_t NumberOf(const CGColor& color) {
  return std::uint64_t{SvgByte(color.red)} << 24 | std::uint64_t{SvgByte(color.green)} << 16 |
         std::uint64_t{SvgByte(color.blue)} << 8 | SvgByte(color.alpha);
}

void AppendColor(std::vector<unsigned char>& colors, const CGColor& color) {
  colors.insert(colors.end(), {SvgByte(color.red), SvgByte(color.green), SvgByte(color.blue)});
}

std::string Extent(std::size_t width, std::size_t height) {
  std::string text;
  AppendSvgAttribute(text, "width", static_cast<double>(width));
  AppendSvgAttribute(text, "height", static_cast<double>(height));
  return text;
}

CGColor Clear(CGColor color) {
  color.alpha = 0;
  return color;
}

/// @return whether all of an image goes into one PNG file.
bool IsOnePicture(const CGImage& image) {
  const CGImage* const mask = image.mask.get();
  return IsPixels(image) &&
         (mask == nullptr || (mask->width == image.width && mask->height == image.height));
}

/// ` xlink:href="#name"`, with what brings an image to the size of another.
std::string Use(const std::string& name, const CGImage& image, const CGImage& size) {
  std::string text = " xlink:href=\"#" + name + "\"";
  AppendSvgTransform(
      text, "transform",
      {static_cast<CGFloat>(size.width) / static_cast<CGFloat>(image.width), 0, 0,
       static_cast<CGFloat>(size.height) / static_cast<CGFloat>(image.height), 0, 0});
  return text;
}

}  // namespace

const std::string& SvgImages::Add(const CGImage& image, const CGColor& paint, bool isSharp) {
  return StoreOnce(image, {paint, Clear(paint), PixelsFor(isSharp)});
}

const std::string& SvgImages::AddLightness(const CGImage& image, bool isSharp) {
  return StoreOnce(image, {kWhite, kBlack, PixelsFor(isSharp)});
}

std::string SvgImages::AddShifted(const CGImage& image, const CGColor& paint) {
  constexpr std::size_t kMostPixels = std::size_t{1} << 22;  // more are seldom told apart
  const bool isSmall = image.width <= kMostPixels / image.height;
  if (!isSmall || !IsOnePicture(image)) return Add(image, paint, false);
  const std::string& name = StoreOnce(image, {paint, Clear(paint), Pixels::kGoOn});
  if (name.empty()) return {};
  const std::string edge = definitions_.Reference(
      "clipPath", "><rect" + Extent(image.width, image.height) + "/></clipPath>");
  return std::string(definitions_.Add("g", " clip-path=\"" + edge + "\"><use xlink:href=\"#" +
                                               name + R"(" x="-.5" y="-.5"/></g>)"));
}

SvgImages::Pixels SvgImages::PixelsFor(bool isSharp) {
  return isSharp ? Pixels::kEnlarged : Pixels::kAsTheyAre;
}

const std::string& SvgImages::StoreOnce(const CGImage& image, const Look& look) {
  const std::uint64_t colors = NumberOf(look.painted) << 32 | NumberOf(look.bare);
  const Key key = {image.serial, image.isMask ? colors : 0, look.pixels};
  const auto known = stored_.find(key);
  if (known != stored_.end()) return known->second;
  return stored_.emplace(key, Store(image, look)).first->second;
}

std::string SvgImages::Store(const CGImage& image, const Look& look) {
  return image.mask != nullptr ? StoreMasked(image, look) : StoreBare(image, look);
}

std::string SvgImages::StoreBare(const CGImage& image, const Look& look) {
  if (!IsPixels(image)) {
    const CGProvidedBytes file = image.provider->Provide();
    const Bytes bytes = file.View();
    return Define(image.width, image.height, "jpeg",
                  {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  }
  CGImageRows rows(image);
  return StorePixels(image, rows.Packed(), look);
}

std::string SvgImages::StorePixels(const CGImage& image, Bytes rows, const Look& look) {
  if (rows.empty()) return {};
  PngPicture picture = {.width = image.width,
                        .height = image.height,
                        .bits = static_cast<unsigned>(image.bitsPerComponent),
                        .rows = rows};
  if (image.isMask) {
    picture.color = PngColor::kIndexed;
    AppendColor(picture.colors, look.painted);
    AppendColor(picture.colors, look.bare);
    if (look.bare.alpha != 1) picture.alphas = {255, SvgByte(look.bare.alpha)};
  } else if (image.indexed != nullptr) {
    picture.color = PngColor::kIndexed;
    picture.colors = ColorsOf(image, rows);
  } else {
    picture.color = image.components == 1 ? PngColor::kGrey : PngColor::kRgb;
  }
  return DefinePicture(image, picture, look.pixels);
}

std::string SvgImages::DefinePicture(const CGImage& image, PngPicture picture, Pixels pixels) {
  std::vector<unsigned char> larger;
  const std::size_t more = pixels == Pixels::kGoOn ? 1 : 0;
  if (pixels == Pixels::kEnlarged) enlarging_.Enlarge(picture, larger);
  if (pixels == Pixels::kGoOn) GoOnByOnePixel(picture, larger);
  return Define(image.width + more, image.height + more, "png", PngFile(picture, deflater_));
}

// A mask of the same size goes into the file. Another one, and that of a JPEG file, stays apart.
std::string SvgImages::StoreMasked(const CGImage& image, const Look& look) {
  const CGImage& mask = *image.mask;
  if (IsOnePicture(image)) {
    const CGImageRows rows(image);
    const CGImageRows maskRows(mask);
    if (!rows.AreWhole() || !maskRows.AreWhole()) return {};
    const auto pixels = MaskedPixels(image, rows, maskRows);
    return DefinePicture(image, {image.width, image.height, PngColor::kRgba, 8, pixels},
                         look.pixels);
  }
  const std::string name = StoreBare(image, look);
  const std::string lightness = AddLightness(mask, look.pixels == Pixels::kEnlarged);
  if (name.empty() || lightness.empty()) return {};
  const std::string reference = definitions_.Reference(
      "mask", R"( maskUnits="userSpaceOnUse" x="0" y="0")" + Extent(image.width, image.height) +
                  "><use" + Use(lightness, mask, image) + "/></mask>");
  return std::string(
      definitions_.Add("use", Use(name, image, image) + " mask=\"" + reference + "\"/>"));
}

std::string SvgImages::Define(std::size_t width, std::size_t height, std::string_view type,
                              std::string_view file) {
  if (file.empty()) return {};
  std::string rest = Extent(width, height);
  // Pixels lie as they are stored, whatever a camera noted beside them.
  if (type == "jpeg") rest += " style=\"image-orientation:none\"";
  rest.append(" xlink:href=\"data:image/").append(type).append(";base64,");
  AppendBase64(rest, {reinterpret_cast<const unsigned char*>(file.data()), file.size()});
  rest += "\"/>";
  return std::string(definitions_.Add("image", std::move(rest)));
}

}  // namespace kelvane

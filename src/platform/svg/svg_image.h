#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <tuple>

#include "base/deflater.h"
#include "platform/quartz/cg_color_space.h"
#include "platform/quartz/cg_image.h"
#include "platform/svg/svg_definitions.h"
#include "platform/svg/svg_enlarging.h"
#include "platform/svg/svg_png.h"

namespace kelvane {

/// The images of a document, as data within it: JPEG files as they are, pixels as PNG files. Each
/// is defined as many units wide and high as it has pixels, its top left corner at the origin. Only
/// the definitions are kept, so the bytes of images go as soon as nobody else has them.
class SvgImages {
 public:
  /// @param definitions  of the document; borrowed.
  explicit SvgImages(SvgDefinitions& definitions) : definitions_(definitions) {}

  /// @param paint    what a mask is painted in; of other images it does not matter.
  /// @param isSharp  whether its pixels are to be seen as such when it is shown larger.
  /// @return the name of the image, its own mask included: the same one for the same image, whose
  ///         provider is asked only once; empty when a provider fell short. Throws as the provider
  ///         does.
  const std::string& Add(const CGImage& image, const CGColor& paint, bool isSharp);

  /// @param image  an image mask, or grey.
  /// @return the name of the same as lightness, which is what masks are made of; empty as above.
  const std::string& AddLightness(const CGImage& image, bool isSharp);

  /// As `Add`, for an image that is smoothed: pixels have their colours at their upper left
  /// corners, not in their middles. Very large images, those with a mask of another size and JPEG
  /// files stay as they are.
  std::string AddShifted(const CGImage& image, const CGColor& paint);

 private:
  enum class Pixels : std::uint8_t {
    kAsTheyAre,
    kEnlarged,  // where that pays
    kGoOn,      // by one to the right and downwards
  };
  /// How an image is to look.
  struct Look {
    CGColor painted;  // what bits of 0 of an image mask become; of other images it does not matter
    CGColor bare;     // and those of 1
    Pixels pixels;
  };
  using Key = std::tuple<std::uint64_t, std::uint64_t, Pixels>;  // the serial, both colours

  static Pixels PixelsFor(bool isSharp);

  const std::string& StoreOnce(const CGImage& image, const Look& look);
  std::string Store(const CGImage& image, const Look& look);
  std::string StoreBare(const CGImage& image, const Look& look);
  std::string StoreMasked(const CGImage& image, const Look& look);
  std::string StorePixels(const CGImage& image, std::span<const unsigned char> rows,
                          const Look& look);
  std::string DefinePicture(const CGImage& image, PngPicture picture, Pixels pixels);
  std::string Define(std::size_t width, std::size_t height, std::string_view type,
                     std::string_view file);

  SvgDefinitions& definitions_;
  Deflater deflater_;
  SvgEnlarging enlarging_;
  std::map<Key, std::string> stored_;
};

}  // namespace kelvane

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "metafile/dib_header.h"

namespace kelvane {
inline namespace metafile {

/// Takes the channels out of pixels of 16, 24 or 32 bits.
class DirectPixels {
 public:
  DirectPixels(unsigned bitCount, const DibMasks& masks);

  [[nodiscard]] std::size_t BytesPerPixel() const { return bytesPerPixel_; }

  /// @param pixels  BytesPerPixel() each. @param rgb  three bytes each.
  void ToRgb(const unsigned char* pixels, std::size_t count, unsigned char* rgb) const;

  /// @param alpha  a byte each. Only of 32 bits.
  void ToAlpha(const unsigned char* pixels, std::size_t count, unsigned char* alpha) const;

 private:
  /// The bits of a mask as a number from 0 to 255; of more than eight the upper eight.
  struct Channel {
    explicit Channel(std::uint32_t bits);
    [[nodiscard]] unsigned char Of(std::uint32_t pixel) const {
      return values[(pixel & mask) >> shift];
    }

    std::uint32_t mask;
    unsigned shift;  // takes the mask to eight bits at most
    std::array<unsigned char, 256> values{};
  };

  /// Which byte of a pixel is a channel, where all three are whole bytes.
  struct ByteChannels {
    bool areAll;
    std::size_t red;
    std::size_t green;
    std::size_t blue;
  };

  static ByteChannels BytesOf(const DibMasks& masks);

  template <std::size_t size>
  void CopyBytes(const unsigned char* pixels, std::size_t count, unsigned char* rgb) const;
  template <class Pixel>
  void LookUp(const unsigned char* pixels, std::size_t count, unsigned char* rgb) const;

  std::size_t bytesPerPixel_;
  ByteChannels bytes_;
  Channel red_;
  Channel green_;
  Channel blue_;
  Channel alpha_;
};

}  // namespace metafile
}  // namespace kelvane

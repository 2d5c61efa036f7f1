#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "metafile/dib_header.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/pixel_rectangle.h"

namespace kelvane {
inline namespace metafile {

/// Where the parts of a stored bitmap lie. Borrowed: they live as long as the bytes of the file.
struct DibBytes {
  std::span<const unsigned char> header{};  // with masks and colour table
  std::span<const unsigned char> pixels{};
  DibUsage usage = DIB_RGB_COLORS;  // of the colour table
};

/// A device-independent bitmap ([MS-WMF] 2.2.2.9) whose header makes sense and whose pixels are
/// there. Nothing is decoded before it is asked for. Borrowed as its bytes are.
class Dib {
 public:
  enum class Content : std::uint8_t {
    kIndexed,  // 1, 4 or 8 bits a pixel that number a colour; run-length encoded or not
    kDirect,   // 16, 24 or 32 bits with the channels in them
    kJpeg,     // a whole JPEG file of 1 or 3 components, 8 bits each
    kPng,      // a whole PNG file
  };

  /// @param palette  the colours that a table of DIB_PAL_COLORS numbers, or of DIB_PAL_INDICES the
  ///                 pixels. Numbers beyond it mean the first, and without any all are black.
  /// @param rows     how many rows there are, in place of the header's; the header's sign stays.
  ///                 A JPEG or PNG file has as many as it says itself.
  /// @return nullopt when the header makes no sense, pixels are missing (but for run-length
  ///         encoding, which may end early), or the kind is unknown. Width and height are from 1 to
  ///         2^31 - 1, and may promise far more pixels than there are bytes.
  static std::optional<Dib> Read(const DibBytes& bytes, std::span<const DibColor> palette = {},
                                 std::optional<std::uint32_t> rows = std::nullopt);

  [[nodiscard]] Content Kind() const { return kind_; }
  [[nodiscard]] std::size_t Width() const { return width_; }
  [[nodiscard]] std::size_t Height() const { return height_; }

  /// How rows are stored, as the header says; of files within the bitmap, too.
  [[nodiscard]] bool IsTopDown() const { return header_.height < 0; }

  [[nodiscard]] unsigned BitCount() const { return header_.bitCount; }  // of kIndexed and kDirect
  [[nodiscard]] bool IsRunLengthEncoded() const;

  /// Whether there may be far more pixels than bytes: with run-length encoding, kJpeg and kPng.
  [[nodiscard]] bool IsCompressed() const;

  /// Of kIndexed: 2^BitCount() colours, those beyond the stored table black.
  [[nodiscard]] std::span<const DibColor> Colors() const { return header_.colors; }

  [[nodiscard]] const DibMasks& Masks() const { return header_.masks; }  // of kDirect

  /// Of kIndexed and kDirect, without run-length encoding: the bytes of a row of the picture, from
  /// the top, without those that fill it up.
  [[nodiscard]] std::span<const unsigned char> Row(std::size_t y) const;

  /// Of kJpeg and kPng: the whole file. With run-length encoding: the codes.
  [[nodiscard]] std::span<const unsigned char> File() const { return pixels_; }

  [[nodiscard]] unsigned Components() const { return components_; }  // of kJpeg: 1 or 3

 private:
  Dib() = default;

  // Each takes the size that there is.
  [[nodiscard]] bool HasJpeg();
  [[nodiscard]] bool HasPng();
  [[nodiscard]] bool HasRows(std::optional<std::uint32_t> rows);

  DibHeader header_;
  std::span<const unsigned char> pixels_;
  Content kind_{};
  std::size_t width_ = 0;
  std::size_t height_ = 0;
  unsigned components_ = 0;
};

// Pixels of a part, which lies within the bitmap: rows top first, without padding. They take memory
// by the size of the part, which whoever asks has found reasonable.

/// @return red, green and blue, a byte each, whatever the content; what run-length encoding skips
///         has colour 0. nullopt when a JPEG or PNG file cannot be decoded.
std::optional<std::vector<unsigned char>> DecodeRgb(const Dib& dib, const PixelRectangle& part);

/// @param dib  of kDirect.
/// @return whether red, green and blue are the same everywhere. Looks no further than the first row
///         where they are not.
bool IsGray(const Dib& dib, const PixelRectangle& part);

/// @return a byte a pixel of a part that is grey.
std::vector<unsigned char> DecodeGray(const Dib& dib, const PixelRectangle& part);

struct IndexedPixels {
  std::vector<unsigned char> indexes;  // a byte each

  /// A byte each, 0 or 1; empty when all are set, as they are without run-length encoding.
  std::vector<unsigned char> isSet;
};

/// @param dib  of kIndexed.
IndexedPixels DecodeIndexes(const Dib& dib, const PixelRectangle& part);

/// @param dib  of kIndexed, without run-length encoding.
/// @return the numbers, BitCount() bits each, highest bits first, each row filled up with 0 to a
///         whole byte.
std::vector<unsigned char> DecodePackedIndexes(const Dib& dib, const PixelRectangle& part);

struct TranslucentPixels {
  std::vector<unsigned char> rgb;    // three bytes each, without the alpha that was multiplied in
  std::vector<unsigned char> alpha;  // a byte each
};

/// @return the pixels of a bitmap of 32 bits whose colours have been multiplied by their alpha; a
///         colour above its alpha counts as equal to it. nullopt for any other bitmap.
std::optional<TranslucentPixels> DecodePremultiplied(const Dib& dib, const PixelRectangle& part);

}  // namespace metafile
}  // namespace kelvane

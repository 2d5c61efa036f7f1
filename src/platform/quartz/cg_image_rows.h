#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "platform/quartz/cg_data_provider.h"
#include "platform/quartz/cg_image.h"

namespace kelvane {

/// @return whether rows, `bytesPerRow` apart and the last only `width` bytes long, lie within
/// `size`
///         bytes. Any numbers.
bool RowsFit(std::size_t size, std::size_t width, std::size_t rows, std::size_t bytesPerRow);

/// Copies an image's rows without their padding, as documents store them.
/// @param pixels       borrowed for the call; rows top first, `bytesPerRow` bytes apart.
/// @param width        bytes used in each row, at least 1.
/// @param height       rows, at least 1.
/// @param bytesPerRow  at least `width`; the last row may end after `width` bytes.
/// @return width * height bytes owned by the caller; nullopt if `pixels` is too short. Throws only
///         std::bad_alloc.
[[nodiscard]] std::optional<std::vector<unsigned char>> PackRows(
    std::span<const unsigned char> pixels, std::size_t width, std::size_t height,
    std::size_t bytesPerRow);

/// The rows of an image of pixels while they are looked at.
class CGImageRows {
 public:
  /// @param image  stays the caller's. Throws as its provider does.
  explicit CGImageRows(const CGImage& image);

  [[nodiscard]] bool AreWhole() const;

  /// @param y  of rows that are whole.
  [[nodiscard]] std::span<const unsigned char> Row(std::size_t y) const {
    return provided_.View().subspan(y * image_.bytesPerRow, image_.RowSize());
  }

  /// @return all rows without padding, as long as this lives: where they are, or a copy. Empty when
  ///         there are too few.
  [[nodiscard]] std::span<const unsigned char> Packed();

 private:
  const CGImage& image_;
  CGProvidedBytes provided_;
  std::optional<std::vector<unsigned char>> packed_;
};

}  // namespace kelvane

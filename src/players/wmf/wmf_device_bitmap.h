#pragma once

#include <optional>
#include <vector>

#include "metafile/dib.h"
#include "metafile/wmf/wmf_bitmap_records.h"

namespace kelvane {

/// The bytes of a bitmap made for one device, as those of one that needs none.
class WmfDeviceBitmap {
 public:
  /// @param zero  what bits 0 of a bitmap of one bit a pixel show. @param one  likewise.
  /// @return nullopt for a bitmap whose colours only its device knew, and for one whose size does
  ///         not fit its bits.
  static std::optional<WmfDeviceBitmap> Of(const Bitmap16& bitmap, DibColor zero, DibColor one);

  /// Borrowed; stays where it is when the bitmap is moved.
  [[nodiscard]] DibBytes Bytes() const;

 private:
  WmfDeviceBitmap() = default;

  std::vector<unsigned char> header_;
  std::vector<unsigned char> pixels_;
};

}  // namespace kelvane

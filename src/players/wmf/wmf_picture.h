#pragma once

#include <optional>
#include <span>

#include "gdi/geometry.h"
#include "metafile/gdi_types.h"
#include "metafile/wmf/wmf_header.h"
#include "players/page_placement.h"

namespace kelvane {

constexpr int kWmfDotsPerInch = 1440;

/// The part of the logical plane that a page shows.
struct WmfWindow {
  PointL origin;
  std::optional<SizeL> extent;  // none is nobody's

  friend bool operator==(const WmfWindow&, const WmfWindow&) = default;
};

/// What a Windows metafile tells of its picture. There is no device in it: it is played on one so
/// fine that its pixels do not show, whose part for the picture has whole ones.
struct WmfPicture {
  WmfHeader header;
  WmfWindow window;            // at the start
  SizeL page;                  // device units
  PictureGeometry geometry;    // its frame is empty when nothing tells how large the picture is
  bool hasDamagedEmf = false;  // whether an enhanced metafile in its comments is not whole
};

/// @param placeable  the file's first header where it is kept elsewhere.
/// @return what the header and the first records tell; nullopt when the bytes are no such file.
std::optional<WmfPicture> ReadWmfPicture(std::span<const unsigned char> file,
                                         std::span<const unsigned char> placeable = {});

}  // namespace kelvane

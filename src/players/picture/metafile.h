#pragma once

#include <memory>
#include <optional>
#include <span>
#include <variant>
#include <vector>

#include "metafile/emf/emf_header.h"
#include "players/page_placement.h"
#include "players/wmf/wmf_picture.h"

namespace kelvane {

/// A file of either format, as far as it is known before its records are played.
struct Metafile {
  std::span<const unsigned char> file;  // borrowed, or what was put together
  std::variant<EmfHeader, WmfPicture> picture;

  /// An enhanced metafile that lay in pieces in the comments of a Windows metafile.
  std::shared_ptr<const std::vector<unsigned char>> assembled = nullptr;

  /// Where the picture lies, as far as the file says.
  [[nodiscard]] PictureGeometry Geometry() const;

  /// @return the header, which tells of title and creator, too; null for a Windows metafile.
  [[nodiscard]] const EmfHeader* Enhanced() const { return std::get_if<EmfHeader>(&picture); }
};

/// Tells the format by the bytes. A Windows metafile that was made of an enhanced one, and still
/// has all of it in its comments, is that one.
/// @param file       borrowed for as long as the metafile.
/// @param placeable  the first header of a Windows metafile where it is kept elsewhere.
/// @return nullopt when the bytes are no metafile.
std::optional<Metafile> OpenMetafile(std::span<const unsigned char> file,
                                     std::span<const unsigned char> placeable = {});

}  // namespace kelvane

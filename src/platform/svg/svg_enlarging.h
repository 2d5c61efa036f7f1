#pragma once

#include <cstddef>
#include <vector>

#include "platform/svg/svg_png.h"

namespace kelvane {

/// Makes small pictures larger before they are stored, pixel by pixel, as Windows shows them: many
/// programs smooth what they enlarge, whatever a document says, and what they smooth then is only
/// the edge of a pixel. Not more of it is done than keeps a document small.
class SvgEnlarging {
 public:
  /// Replaces the rows of a picture by larger ones where that pays. @param rows  keeps them.
  void Enlarge(PngPicture& picture, std::vector<unsigned char>& rows);

 private:
  std::size_t left_ = std::size_t{1} << 21;  // pixels that a document may still gain
};

/// Adds a column to the right and a row below, of the pixels beside them. @param rows  keeps them.
void GoOnByOnePixel(PngPicture& picture, std::vector<unsigned char>& rows);

}  // namespace kelvane

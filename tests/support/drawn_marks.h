#pragma once

#include <ostream>
#include <vector>

#include "support/surface.h"

namespace kelvane::test {

/// Something that every output shows alike.
struct DrawnMark {
  const char* name;
  Drawing draw;
  int differing = 20;   // pixels of 160,000, for renderers have edges of their own
  int tolerance = 6;    // of colours
  bool isFile = false;  // an image that is given as a JPEG file
};

std::ostream& operator<<(std::ostream& out, const DrawnMark& mark);

/// Marks of all kinds on a page of kPageBox: paths, clips, paints, images and text.
std::vector<DrawnMark> DrawnMarks();

}  // namespace kelvane::test

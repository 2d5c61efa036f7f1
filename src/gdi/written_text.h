#pragma once

#include <string>
#include <vector>

#include "gdi/geometry.h"

namespace kelvane {

/// What a call writes: Unicode, or numbers of glyphs.
struct WrittenText {
  std::u16string units;
  std::vector<PointD> advances;  // logical units, along the baseline and up, one a unit; or none
  bool areGlyphs = false;
  bool hasUnknownGlyphs = false;   // numbers that mean nothing in the face that is there
  bool hasUnknownSymbols = false;  // codes for which no character is known
};

}  // namespace kelvane

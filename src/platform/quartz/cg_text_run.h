#pragma once

#include <string>

#include "platform/quartz/cg_geometry.h"

namespace kelvane {

/// A run of text in the standard Helvetica, the face that every reader of documents has.
struct CGTextRun {
  std::string codes;         // WinAnsi, one byte a character (ISO 32000-1, annex D)
  CGFloat size;              // user space units an em, above 0
  CGAffineTransform matrix;  // text space, origin at the pen, to page space
};

}  // namespace kelvane

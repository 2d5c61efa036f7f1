#pragma once

#include <vector>

#include "gdi/geometry.h"
#include "platform/quartz/cg_path.h"

namespace kelvane {

/// A figure with its curves as lines.
struct FlatLine {
  std::vector<PointD> points;  // at least one
  bool isClosed = false;
};

/// The figures of a path, which unlike an area's may be open.
/// @param tolerance  how far the lines may lie from the curves.
std::vector<FlatLine> FlatLinesOf(const CGPath& path, double tolerance);

}  // namespace kelvane

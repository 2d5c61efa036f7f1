#pragma once

#include <optional>
#include <variant>
#include <vector>

#include "platform/quartz/cg_color_space.h"
#include "platform/quartz/cg_geometry.h"

namespace kelvane {

/// A colour somewhere along a line.
struct CGGradientStop {
  CGFloat location = 0;  // 0 the line's start, 1 its end
  CGColor color;

  friend bool operator==(const CGGradientStop&, const CGGradientStop&) = default;
};

/// Colour that changes along a line, and stays as it is beyond the line's ends.
struct CGAxialShading {
  CGPoint start;
  CGPoint end;                        // elsewhere than the start
  std::vector<CGGradientStop> stops;  // 2 or more, none before the one that it follows

  friend bool operator==(const CGAxialShading&, const CGAxialShading&) = default;
};

struct CGMeshVertex {
  CGPoint point;
  CGColor color;

  friend bool operator==(const CGMeshVertex&, const CGMeshVertex&) = default;
};

/// Triangles, linear in colour between their corners. Where they overlap the later one shows.
struct CGTriangleMesh {
  std::vector<CGMeshVertex> vertices;  // three a triangle

  friend bool operator==(const CGTriangleMesh&, const CGTriangleMesh&) = default;
};

using CGShading = std::variant<CGAxialShading, CGTriangleMesh>;

/// @return whether all of its colours are; else what lies below shows through, by alpha that
///         changes as the colours do.
bool IsOpaque(const CGShading& shading);

/// @return the shading that shows, mapped by the transform, what `shading` shows; nullopt when it
///         shows nothing, since it has too few stops or vertices, a number that is not finite,
///         stops out of order, or no extent. Vertices that make no whole triangle are left out.
std::optional<CGShading> Mapped(const CGShading& shading, const CGAffineTransform& transform);

}  // namespace kelvane

#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "gdi/flat_lines.h"
#include "gdi/geometry.h"
#include "metafile/emfplus/emfplus_enumerations.h"
#include "platform/quartz/cg_path.h"

namespace kelvane::gdiplus {

/// How the corners of a line look.
struct LineJoin {
  EmfPlusLineJoin kind = EmfPlusLineJoin::kMiter;
  double miterLimit = 10;  // widths
};

/// Two edges of a part of a line, as distances from its middle; positive ones lie to the left of
/// who goes along it with y downwards.
struct Band {
  double left = 0;
  double right = 0;
};

/// Makes figures that are filled by their winding: all wind the same way, so that where they
/// overlap nothing is lost and nothing adds up.
class OutlineBuilder {
 public:
  /// @param toDevice  from the space in which figures come. @param mostPoints  of them together.
  OutlineBuilder(const TransformD& toDevice, std::size_t mostPoints);

  /// Figures are turned around as a whole when together they wind the wrong way.
  void AddFigures(std::vector<std::vector<PointD>> figures);
  void AddFigure(std::vector<PointD> figure) { AddFigures({std::move(figure)}); }

  void AddDisc(PointD center, double radius);

  /// A part of a line with flat ends.
  void AddBand(const FlatLine& line, const Band& band, const LineJoin& join);

  /// What more is added is lost.
  [[nodiscard]] bool IsFull() const { return points_ > mostPoints_; }

  [[nodiscard]] CGPath Take() { return std::move(path_); }

 private:
  void Add(std::span<const PointD> figure);

  TransformD toDevice_;
  double scale_;
  std::size_t mostPoints_;
  std::size_t points_ = 0;
  CGPath path_;
};

/// @return the line without points that equal the one before; those of a closed one go around.
FlatLine WithoutRepeats(const FlatLine& line);

}  // namespace kelvane::gdiplus

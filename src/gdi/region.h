#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "gdi/geometry.h"
#include "gdi/steps.h"
#include "metafile/gdi_enumerations.h"

namespace kelvane {

/// An area made of upright rectangles, in device units, which may be fractions.
///
/// It is kept as bands, top to bottom, each with its spans from left to right. Bands do not overlap
/// and spans do not even touch; bands that touch differ in their spans. So equal areas are equal
/// values. Edges saturate at ±kFarthest, and an edge that lies there stands for no end at all.
class Region {
 public:
  static constexpr double kFarthest =
      2147483648.0;  // beyond 32 bits, and the same in single precision

  /// The empty region.
  Region() = default;

  /// Empty if the rectangle is.
  explicit Region(const RectangleD& rectangle);

  /// The whole plane.
  static Region Everything();

  /// Everything that lies in at least one rectangle, by one sweep over them all.
  /// @param rectangles  in any order; they may overlap, and empty ones count for nothing.
  /// @param steps       those that the bands of the result take; sorting takes none.
  /// @return nullopt when the steps run out.
  static std::optional<Region> Union(std::span<const RectangleD> rectangles, Steps& steps);

  [[nodiscard]] bool IsEmpty() const { return bands_.empty(); }
  [[nodiscard]] bool IsRectangle() const { return edges_.size() == 2; }

  /// Zero for the empty region.
  [[nodiscard]] const RectangleD& Bounds() const { return bounds_; }

  /// Left and top edges belong to the region, right and bottom edges do not.
  [[nodiscard]] bool Contains(PointD point) const;

  /// What an operation has to look at: the edges of all spans.
  [[nodiscard]] std::size_t EdgeCount() const { return edges_.size(); }

  /// Calls `visit(rectangle)` for each span of each band: top to bottom, left to right.
  template <class Visitor>
  void ForEachRectangle(Visitor&& visit) const {
    std::size_t edge = 0;
    for (const Band& band : bands_) {
      for (; edge < band.endOfEdges; edge += 2) {
        visit(RectangleD{edges_[edge], band.top, edges_[edge + 1], band.bottom});
      }
    }
  }

  /// Moved; what leaves the plane is lost. A distance that is not a number counts as 0.
  [[nodiscard]] Region Translated(double x, double y) const;

  friend bool operator==(const Region&, const Region&) = default;

 private:
  friend class RegionBuilder;

  struct Band {
    double top;
    double bottom;
    std::size_t endOfEdges;  // in edges_; the band's begin where those of the band before end

    friend bool operator==(const Band&, const Band&) = default;
  };

  [[nodiscard]] std::span<const double> EdgesOf(std::size_t band) const;

  friend std::optional<Region> Combine(const Region&, const Region&, RegionMode, Steps&);

  std::vector<Band> bands_;
  std::vector<double> edges_;  // left, right, left, right, …
  RectangleD bounds_;
};

/// Both as sets of points. A mode is a rule on (in a, in b); no operand is a special case, not even
/// the empty region. Without a rule, as modes of broken files are, the result is empty.
/// @return nullopt when the steps run out.
[[nodiscard]] std::optional<Region> Combine(const Region& a, const Region& b, RegionMode mode,
                                            Steps& steps);

}  // namespace kelvane

#pragma once

#include <cstdint>
#include <string>

#include "platform/quartz/cg_geometry.h"

namespace kelvane {

/// The grid that coordinates are rounded to, so that numbers are as short as what they place
/// allows. Whoever writes differences between points on it adds up no error.
class SvgGrid {
 public:
  /// @param extent  of what is drawn, in the units of its coordinates: the grid divides it into at
  ///                least 100,000 steps.
  explicit SvgGrid(double extent);

  /// @return the coordinate in steps. One so far out that nothing of it shows is brought nearer.
  [[nodiscard]] std::int64_t Steps(double coordinate) const;

  /// Writes steps as a number, with nothing between it and what stands before it.
  /// @return whether it has a point.
  bool Append(std::string& text, std::int64_t steps) const;

  /// @return whether the number begins with its point.
  [[nodiscard]] bool BeginsWithPoint(std::int64_t steps) const {
    return steps > 0 && steps < perUnit_;
  }

 private:
  int decimals_ = 0;
  std::int64_t perUnit_ = 1;
};

/// Numbers one after the other, set apart only where they would run into each other.
class SvgNumberList {
 public:
  /// @param grid  of the numbers; borrowed, as is the text.
  SvgNumberList(std::string& text, const SvgGrid& grid) : text_(text), grid_(grid) {}

  void Append(std::int64_t steps) {
    const bool standsApart = isFirst_ || steps < 0 || (hasPoint_ && grid_.BeginsWithPoint(steps));
    if (!standsApart) text_ += ' ';
    hasPoint_ = grid_.Append(text_, steps);
    isFirst_ = false;
  }

  /// Something else was written, which sets apart what follows.
  void StartOver() { isFirst_ = true; }

 private:
  std::string& text_;
  const SvgGrid& grid_;
  bool isFirst_ = true;
  bool hasPoint_ = false;  // the last number
};

/// Writes a number with as many digits as matter in a length or the element of a matrix.
void AppendSvgNumber(std::string& text, double value);

/// Writes ` name="number"`.
void AppendSvgAttribute(std::string& text, const char* name, double value);

/// Writes ` name="matrix(…)"`; nothing for the identity.
void AppendSvgTransform(std::string& text, const char* name, const CGAffineTransform& transform);

}  // namespace kelvane

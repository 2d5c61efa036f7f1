#pragma once

#include <vector>

#include "platform/quartz/cg_color_space.h"
#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_graphics_state.h"

namespace kelvane {

/// Which values of the graphics state a mark depends on.
struct CGStateNeeds {
  bool fill = false;
  bool stroke = false;
  bool text = false;
};

/// A sequential output's operators for values of the graphics state, one each.
class CGValueOperators {
 public:
  CGValueOperators() = default;
  CGValueOperators(const CGValueOperators&) = delete;
  CGValueOperators& operator=(const CGValueOperators&) = delete;

  virtual void FillColor(const CGColor& color) = 0;    // opaque
  virtual void StrokeColor(const CGColor& color) = 0;  // opaque
  virtual void LineWidth(CGFloat width) = 0;           // page space
  virtual void MiterLimit(CGFloat limit) = 0;
  virtual void TextMode(CGTextDrawingMode mode) = 0;

 protected:
  ~CGValueOperators() = default;
};

/// Brings the values that a sequential output holds to those that the next mark needs. An operator
/// is written only where a value differs. To begin with the output holds those of a new page:
/// black, width 1, miter limit 10, text filled.
class CGValueWriter {
 public:
  /// @param state  the state the mark is made under.
  void Bring(const CGGraphicsState& state, CGStateNeeds needs, CGValueOperators& output);

  /// The output saved the values it holds.
  void Save() { saved_.push_back(held_); }

  /// The output holds again what it held at the save that this belongs to; there must be one.
  void Restore();

 private:
  struct Values {
    CGColor fillColor;
    CGColor strokeColor;
    CGFloat lineWidth = 1;
    CGFloat miterLimit = 10;
    CGTextDrawingMode textMode = kCGTextFill;
  };

  Values held_;
  std::vector<Values> saved_;
};

}  // namespace kelvane

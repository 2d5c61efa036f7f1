#pragma once

#include <tuple>
#include <vector>

#include "platform/quartz/cg_blend_mode.h"
#include "platform/quartz/cg_color_space.h"
#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_graphics_state.h"
#include "platform/quartz/cg_pattern.h"
#include "platform/quartz/cg_stroke_style.h"

namespace kelvane {

/// Which values of the graphics state a mark depends on.
struct CGStateNeeds {
  bool fill = false;
  bool stroke = false;
  bool text = false;
};

/// How a mark comes onto what lies below it.
struct CGCompositing {
  CGFloat alpha = 1;
  CGBlendMode mode = kCGBlendModeNormal;

  friend bool operator==(const CGCompositing&, const CGCompositing&) = default;
  friend bool operator<(const CGCompositing& a, const CGCompositing& b) {
    return std::tie(a.alpha, a.mode) < std::tie(b.alpha, b.mode);
  }
};

/// A sequential output's operators for values of the graphics state, one each.
class CGValueOperators {
 public:
  CGValueOperators() = default;
  CGValueOperators(const CGValueOperators&) = delete;
  CGValueOperators& operator=(const CGValueOperators&) = delete;

  virtual void FillColor(const CGColor& color) = 0;    // opaque
  virtual void StrokeColor(const CGColor& color) = 0;  // opaque
  virtual void FillPattern(const CGSharedPattern& pattern) = 0;
  virtual void StrokePattern(const CGSharedPattern& pattern) = 0;
  virtual void LineWidth(CGFloat width) = 0;  // in the space the stroke is drawn in
  virtual void LineCap(CGLineCap cap) = 0;
  virtual void LineJoin(CGLineJoin join) = 0;
  virtual void LineDash(const CGLineDash& dash) = 0;  // in the space the stroke is drawn in
  virtual void MiterLimit(CGFloat limit) = 0;
  virtual void TextMode(CGTextDrawingMode mode) = 0;
  virtual void Compositing(const CGCompositing& compositing) = 0;

 protected:
  ~CGValueOperators() = default;
};

/// Brings the values that a sequential output holds to those that the next mark needs. An operator
/// is written only where a value differs. To begin with the output holds those of a new page:
/// black, a solid line of width 1 with butt ends and mitred corners to a limit of 10, text filled,
/// everything opaque.
class CGValueWriter {
 public:
  /// @param state  the state the mark is made under.
  void Bring(const CGGraphicsState& state, CGStateNeeds needs, CGValueOperators& output);

  /// The output saved the values it holds.
  void Save() { saved_.push_back(held_); }

  /// The output holds again what it held at the save that this belongs to; there must be one.
  void Restore();

 private:
  /// A colour, or a pattern in its place.
  struct Paint {
    CGColor color;
    CGSharedPattern pattern;
  };

  struct Values {
    Paint fill;
    Paint stroke;
    CGFloat lineWidth = 1;
    CGFloat miterLimit = 10;
    CGLineCap lineCap = kCGLineCapButt;
    CGLineJoin lineJoin = kCGLineJoinMiter;
    CGLineDash dash;
    CGTextDrawingMode textMode = kCGTextFill;
    CGCompositing compositing;
  };

  void BringStroke(const CGGraphicsState& state, bool isText, CGValueOperators& output);

  Values held_;
  std::vector<Values> saved_;
};

}  // namespace kelvane

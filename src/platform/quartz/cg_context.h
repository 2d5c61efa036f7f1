#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/corefoundation/cf_base.h"
#include "platform/quartz/cg_color_space.h"
#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_glyph_run.h"
#include "platform/quartz/cg_graphics_state.h"
#include "platform/quartz/cg_image.h"
#include "platform/quartz/cg_path.h"
#include "platform/quartz/cg_saved_states.h"

namespace kelvane {

/// The drawing surface. This class keeps the graphics state, the current path and all geometry; a
/// back end is handed finished marks in page space, which is the page's default user space, and
/// nothing else.
///
/// Used by one thread at a time. Any call may throw std::bad_alloc.
class CGContext : public CFObject {
 public:
  // Pages. What is drawn outside a page is lost.
  void BeginPage(const CGRect& mediaBox);
  /// Closes the states still saved; the path and the state start afresh on the next page.
  void EndPage();
  /// Finishes the document. Throws when it cannot be written. A surface that goes without it leaves
  /// nothing.
  virtual void Close() = 0;

  // Graphics state.
  void SaveGState();
  void RestoreGState();  // does nothing when nothing is saved
  void ConcatCTM(const CGAffineTransform& transform);
  [[nodiscard]] const CGGraphicsState& State() const { return state_; }
  [[nodiscard]] CGGraphicsState& State() { return state_; }
  void SetTextMatrix(const CGAffineTransform& matrix) { textMatrix_ = matrix; }
  [[nodiscard]] const CGAffineTransform& TextMatrix() const { return textMatrix_; }

  // Path, in user space: mapped by the CTM of the moment.
  void MoveToPoint(CGPoint point) { path_.MoveTo(ToPage(point)); }
  void AddLineToPoint(CGPoint point) { path_.LineTo(ToPage(point)); }
  void AddCurveToPoint(CGPoint control1, CGPoint control2, CGPoint end) {
    path_.CurveTo(ToPage(control1), ToPage(control2), ToPage(end));
  }
  void AddRect(const CGRect& rect);
  void AddEllipseInRect(const CGRect& rect);
  void AddArc(CGPoint center, CGFloat radius, CGFloat startAngle, CGFloat endAngle, bool clockwise);
  void ClosePath() { path_.Close(); }
  void BeginPath() { path_.Clear(); }
  [[nodiscard]] CGPoint PathCurrentPoint() const;

  // Marks.
  void DrawPath(CGPathDrawingMode mode);
  void Clip();
  void DrawImage(const CGRect& rect, CGImageRef image);
  /// Draws the run; its matrix leads to user space. A run with a number that is not finite marks
  /// nothing.
  void DrawGlyphRun(const CGGlyphRun& run);

  /// @return which faces this output can show; to be asked before a face is chosen.
  [[nodiscard]] virtual CGFontFilter FontFilter() const = 0;

  [[nodiscard]] CGPoint ToUserSpace(CGPoint pagePoint) const;
  [[nodiscard]] CGRect ToUserSpace(const CGRect& pageRect) const;

 protected:
  /// False outside a page, and where a clip hides all.
  [[nodiscard]] bool Shows() const { return inPage_ && !state_.hidesAll; }

  /// The clips in effect, oldest first.
  [[nodiscard]] std::span<const CGClip> Clips() const { return {clips_.data(), state_.clipCount}; }

  // What a back end provides. All coordinates are finite and in page space.
  virtual void PageBegins(const CGRect& mediaBox) = 0;
  virtual void PageEnds() = 0;
  virtual void PathPainted(const CGPath& path, CGPathDrawingMode mode) = 0;
  /// @param matrix  maps the unit square, whose top edge is the image's top row, onto the page.
  virtual void ImageDrawn(const CGImage& image, const CGAffineTransform& matrix) = 0;
  /// @param run  not empty; its matrix leads to page space.
  virtual void GlyphsDrawn(const CGGlyphRun& run) = 0;

 private:
  [[nodiscard]] CGPoint ToPage(CGPoint point) const {
    return CGPointApplyAffineTransform(point, state_.ctm);
  }
  void ResetPage();

  CGGraphicsState state_;
  CGSavedStates saved_;
  std::vector<CGClip> clips_;  // the first state_.clipCount are in effect
  std::uint64_t nextClipSerial_ = 1;
  CGPath path_;
  CGAffineTransform textMatrix_;
  bool inPage_ = false;
};

using CGContextRef = CGContext*;

/// Options a document may be given; there are none yet.
class CFDictionary;
using CFDictionaryRef = const CFDictionary*;

// The platform's calls, under the platform's names. User space is y upwards; angles are radians.
// None takes a null context.

inline void CGContextBeginPage(CGContextRef c, const CGRect* mediaBox) {
  c->BeginPage(*mediaBox);
}
inline void CGContextEndPage(CGContextRef c) {
  c->EndPage();
}

inline void CGContextSaveGState(CGContextRef c) {
  c->SaveGState();
}
inline void CGContextRestoreGState(CGContextRef c) {
  c->RestoreGState();
}
inline CGAffineTransform CGContextGetCTM(CGContextRef c) {
  return c->State().ctm;
}
inline void CGContextConcatCTM(CGContextRef c, const CGAffineTransform& t) {
  c->ConcatCTM(t);
}
inline CGPoint CGContextConvertPointToUserSpace(CGContextRef c, CGPoint point) {
  return c->ToUserSpace(point);
}
/// @return the bounding box of the rectangle's corners in user space.
inline CGRect CGContextConvertRectToUserSpace(CGContextRef c, const CGRect& rect) {
  return c->ToUserSpace(rect);
}

inline void CGContextBeginPath(CGContextRef c) {
  c->BeginPath();
}
inline void CGContextMoveToPoint(CGContextRef c, CGFloat x, CGFloat y) {
  c->MoveToPoint({x, y});
}
/// A line with no current point acts as a move.
inline void CGContextAddLineToPoint(CGContextRef c, CGFloat x, CGFloat y) {
  c->AddLineToPoint({x, y});
}
/// A curve with no current point only moves to its end.
inline void CGContextAddCurveToPoint(CGContextRef c, CGFloat x1, CGFloat y1, CGFloat x2, CGFloat y2,
                                     CGFloat x3, CGFloat y3) {
  c->AddCurveToPoint({x1, y1}, {x2, y2}, {x3, y3});
}
/// @param clockwise  0 runs by increasing angle, anything else by decreasing angle; a difference of
/// a full turn or
///                   more is one full circle. A line joins the current point, if any, to the arc's
///                   start.
inline void CGContextAddArc(CGContextRef c, CGFloat x, CGFloat y, CGFloat radius,
                            CGFloat startAngle, CGFloat endAngle, int clockwise) {
  c->AddArc({x, y}, radius, startAngle, endAngle, clockwise != 0);
}
/// Afterwards the current point is the rectangle's origin.
inline void CGContextAddRect(CGContextRef c, const CGRect& rect) {
  c->AddRect(rect);
}
/// Afterwards the current point is the ellipse's rightmost point.
inline void CGContextAddEllipseInRect(CGContextRef c, const CGRect& rect) {
  c->AddEllipseInRect(rect);
}
inline void CGContextClosePath(CGContextRef c) {
  c->ClosePath();
}
/// @return the current point in user space; (0, 0) for an empty path.
inline CGPoint CGContextGetPathCurrentPoint(CGContextRef c) {
  return c->PathCurrentPoint();
}

/// Paints the path and empties it. An empty path, one of moves alone and one with a coordinate that
/// is not finite mark nothing.
inline void CGContextDrawPath(CGContextRef c, CGPathDrawingMode mode) {
  c->DrawPath(mode);
}
/// Cuts later marks to the path (non-zero winding) and empties it. An empty path and one with a
/// coordinate that is not finite change nothing; one of moves alone hides all that follows.
inline void CGContextClip(CGContextRef c) {
  c->Clip();
}
/// Cuts later marks to the rectangle; the current path is lost.
void CGContextClipToRect(CGContextRef c, const CGRect& rect);

void CGContextSetFillColorSpace(CGContextRef c, CGColorSpaceRef space);
void CGContextSetStrokeColorSpace(CGContextRef c, CGColorSpaceRef space);
/// @param components  as many as the fill colour space has, from 0 to 1, then alpha.
void CGContextSetFillColor(CGContextRef c, const CGFloat* components);
/// @param components  as many as the stroke colour space has, from 0 to 1, then alpha.
void CGContextSetStrokeColor(CGContextRef c, const CGFloat* components);
/// @param width  user space units; 0, and anything below, is the thinnest line the output has.
/// Strokes of a width
///               that is not finite are left out.
void CGContextSetLineWidth(CGContextRef c, CGFloat width);
/// @param limit  how many line widths a mitred corner may reach; not-a-number changes nothing.
void CGContextSetMiterLimit(CGContextRef c, CGFloat limit);

inline void CGContextSetTextMatrix(CGContextRef c, const CGAffineTransform& matrix) {
  c->SetTextMatrix(matrix);
}
inline CGAffineTransform CGContextGetTextMatrix(CGContextRef c) {
  return c->TextMatrix();
}
inline void CGContextSetTextDrawingMode(CGContextRef c, CGTextDrawingMode mode) {
  c->State().textMode = mode;
}

/// Draws the image upright into the rectangle. A null image marks nothing.
inline void CGContextDrawImage(CGContextRef c, const CGRect& rect, CGImageRef image) {
  if (image != nullptr) c->DrawImage(rect, image);
}

}  // namespace kelvane

#pragma once

#include "platform/quartz/cg_color_space.h"
#include "platform/quartz/cg_context.h"
#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_graphics_state.h"
#include "platform/quartz/cg_image.h"
#include "platform/quartz/cg_shading.h"

namespace kelvane {

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
///                   a full turn or more is one full circle. A line joins the current point, if
///                   any, to the arc's start.
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
/// The same by the even-odd rule.
inline void CGContextEOClip(CGContextRef c) {
  c->EOClip();
}
/// Cuts later marks to the rectangle; the current path is lost.
inline void CGContextClipToRect(CGContextRef c, const CGRect& rect) {
  c->BeginPath();
  c->AddRect(rect);
  c->Clip();
}

inline void CGContextSetFillColorSpace(CGContextRef c, CGColorSpaceRef space) {
  c->SetFillColorSpace(*space);
}
inline void CGContextSetStrokeColorSpace(CGContextRef c, CGColorSpaceRef space) {
  c->SetStrokeColorSpace(*space);
}
/// @param components  as many as the fill colour space has, from 0 to 1, then alpha.
inline void CGContextSetFillColor(CGContextRef c, const CGFloat* components) {
  c->SetFillColor(MakeColor(components, c->State().fillComponents));
}
/// @param components  as many as the stroke colour space has, from 0 to 1, then alpha.
inline void CGContextSetStrokeColor(CGContextRef c, const CGFloat* components) {
  c->SetStrokeColor(MakeColor(components, c->State().strokeComponents));
}
/// @param width  user space units; 0, and anything below, is the thinnest line the output has.
///               Strokes of a width that is not finite are left out.
inline void CGContextSetLineWidth(CGContextRef c, CGFloat width) {
  c->SetLineWidth(width);
}
/// @param limit  how many line widths a mitred corner may reach; not-a-number changes nothing.
inline void CGContextSetMiterLimit(CGContextRef c, CGFloat limit) {
  c->SetMiterLimit(limit);
}

inline void CGContextSetLineCap(CGContextRef c, CGLineCap cap) {
  c->SetLineCap(cap);
}
inline void CGContextSetLineJoin(CGContextRef c, CGLineJoin join) {
  c->SetLineJoin(join);
}
/// @param lengths  user space units: dash, gap, …; none, and those that are no lengths or all 0,
///                 make a solid line. Copied.
inline void CGContextSetLineDash(CGContextRef c, CGFloat phase, const CGFloat* lengths,
                                 std::size_t count) {
  c->SetLineDash(phase, {lengths, count});
}
/// @param alpha  from 0 to 1, of all marks, images too.
inline void CGContextSetAlpha(CGContextRef c, CGFloat alpha) {
  c->SetAlpha(alpha);
}
/// A page with any mode but the normal one has white paper below it.
inline void CGContextSetBlendMode(CGContextRef c, CGBlendMode mode) {
  c->SetBlendMode(mode);
}

inline void CGContextSetTextMatrix(CGContextRef c, const CGAffineTransform& matrix) {
  c->SetTextMatrix(matrix);
}
inline CGAffineTransform CGContextGetTextMatrix(CGContextRef c) {
  return c->TextMatrix();
}
inline void CGContextSetTextDrawingMode(CGContextRef c, CGTextDrawingMode mode) {
  c->SetTextDrawingMode(mode);
}

/// Draws the image upright into the rectangle; a mask lets the fill colour or pattern through. A
/// null image marks nothing.
inline void CGContextDrawImage(CGContextRef c, const CGRect& rect, CGImageRef image) {
  if (image != nullptr) c->DrawImage(rect, image);
}
/// Colours all that the clip shows, or what of it a mesh covers.
/// @param shading  user space. One with a number that is not finite, fewer than two stops, stops
///                 out of order or no whole triangle marks nothing.
inline void CGContextDrawShading(CGContextRef c, const CGShading& shading) {
  c->DrawShading(shading);
}

}  // namespace kelvane

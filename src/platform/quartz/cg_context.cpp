#include "platform/quartz/cg_context.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/quartz/cg_arcs.h"

namespace kelvane {
void CGContext::BeginPage(const CGRect& mediaBox) {
  if (inPage_) EndPage();
  ResetPage();
  inPage_ = true;
  PageBegins(mediaBox);
}

void CGContext::EndPage() {
  if (!inPage_) return;
  ResetPage();
  inPage_ = false;
  PageEnds();
}

void CGContext::ResetPage() {
  state_ = {};
  saved_.Clear();
  clips_.clear();
  path_.Clear();
  textMatrix_ = {};
  ground_.reset();
}

void CGContext::SaveGState() {
  saved_.Push(state_);
}

void CGContext::RestoreGState() {
  if (saved_.IsEmpty()) return;
  state_ = saved_.Pop();
  clips_.resize(state_.clipCount);
}

void CGContext::ConcatCTM(const CGAffineTransform& transform) {
  state_.ctm = CGAffineTransformConcat(transform, state_.ctm);
}

void CGContext::SetFillColorSpace(const CGColorSpace& space) {
  state_.fillComponents = static_cast<std::uint8_t>(space.components);
  state_.fillColor = {};
}

void CGContext::SetStrokeColorSpace(const CGColorSpace& space) {
  state_.strokeComponents = static_cast<std::uint8_t>(space.components);
  state_.strokeColor = {};
}

void CGContext::SetMiterLimit(CGFloat limit) {
  if (!std::isnan(limit)) state_.miterLimit = limit;
}

void CGContext::AddRect(const CGRect& rect) {
  path_.AddMappedRectangle(rect, state_.ctm);
}

void CGContext::AddEllipseInRect(const CGRect& rect) {
  AddEllipse(path_, state_.ctm, rect);
}

void CGContext::AddArc(CGPoint center, CGFloat radius, CGFloat startAngle, CGFloat endAngle,
                       bool clockwise) {
  kelvane::AddArc(path_, state_.ctm, center, radius, startAngle, endAngle, clockwise);
}

void CGContext::SetLineDash(CGFloat phase, std::span<const CGFloat> lengths) {
  const bool areLengths = std::ranges::all_of(
      lengths, [](CGFloat length) { return length >= 0 && std::isfinite(length); });
  const bool comeToSomething =
      std::ranges::any_of(lengths, [](CGFloat length) { return length > 0; });
  if (!areLengths || !comeToSomething || !std::isfinite(phase)) lengths = {};
  state_.dash.lengths.assign(lengths.begin(), lengths.end());
  state_.dash.phase = lengths.empty() ? 0 : phase;
}

void CGContext::SetAlpha(CGFloat alpha) {
  if (!std::isnan(alpha)) state_.alpha = std::clamp(alpha, CGFloat{0}, CGFloat{1});
}

void CGContext::SwapPath(CGPath& path) {
  path.Map(state_.ctm);
  std::swap(path_, path);
  path.Clear();
}

CGPoint CGContext::PathCurrentPoint() const {
  return path_.IsEmpty() ? CGPoint{} : ToUserSpace(path_.CurrentPoint());
}

void CGContext::DrawPath(CGPathDrawingMode mode) {
  const bool finite = path_.IsFinite() && (!Strokes(mode) || std::isfinite(state_.lineWidth));
  if (Shows() && path_.HasSegments() && finite) {
    if (ground_) ground_->PathPainted(state_, Clips(), path_, mode);
    PathPainted(path_, mode);
  }
  path_.Clear();
}

void CGContext::ClipToPath(bool isEvenOdd) {
  if (path_.HasSegments() && path_.IsFinite()) {
    clips_.push_back({std::exchange(path_, {}), isEvenOdd, nextClipSerial_++, saved_.Depth()});
    state_.clipCount = clips_.size();
  } else if (!path_.IsEmpty() && path_.IsFinite()) {
    state_.hidesAll = true;
  }
  path_.Clear();
}

void CGContext::DrawImage(const CGRect& rect, CGImageRef image) {
  const CGAffineTransform unitSquareToRect = {
      rect.size.width, 0, 0, rect.size.height, rect.origin.x, rect.origin.y};
  const CGAffineTransform matrix = CGAffineTransformConcat(unitSquareToRect, state_.ctm);
  if (!Shows() || !IsFinite(matrix)) return;
  if (ground_) ground_->Disturb(BoxOf(CGRectApplyAffineTransform({{0, 0}, {1, 1}}, matrix)));
  ImageDrawn(*image, matrix);
}

void CGContext::DrawShading(const CGShading& shading) {
  if (!Shows()) return;
  const auto onPage = Mapped(shading, state_.ctm);
  if (!onPage) return;
  if (ground_) ground_->Disturb(ExtentOf(*onPage, Clips()));
  ShadingDrawn(*onPage);
}

void CGContext::DrawGlyphRun(const CGGlyphRun& run) {
  CGGlyphRun onPage = run;
  if (std::exchange(onPage.isSlanted, false)) {
    onPage.matrix = CGAffineTransformConcat(kCGSlant, run.matrix);
  }
  onPage.matrix = CGAffineTransformConcat(onPage.matrix, state_.ctm);
  const bool finite = std::isfinite(run.size) && IsFinite(onPage.matrix) &&
                      std::ranges::all_of(run.glyphs, [](const CGPositionedGlyph& glyph) {
                        return IsFinite(glyph.origin);
                      });
  if (!Shows() || !finite || run.size <= 0 || run.glyphs.empty()) return;
  if (ground_) ground_->Disturb(ExtentOf(onPage));
  GlyphsDrawn(onPage);
}

CGPoint CGContext::ToUserSpace(CGPoint pagePoint) const {
  return CGPointApplyAffineTransform(pagePoint, CGAffineTransformInvert(state_.ctm));
}

CGRect CGContext::ToUserSpace(const CGRect& pageRect) const {
  return CGRectApplyAffineTransform(pageRect, CGAffineTransformInvert(state_.ctm));
}

}  // namespace kelvane

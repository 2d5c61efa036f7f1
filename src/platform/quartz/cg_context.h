#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "platform/corefoundation/cf_base.h"
#include "platform/quartz/cg_color_space.h"
#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_glyph_run.h"
#include "platform/quartz/cg_graphics_state.h"
#include "platform/quartz/cg_ground.h"
#include "platform/quartz/cg_image.h"
#include "platform/quartz/cg_path.h"
#include "platform/quartz/cg_saved_states.h"
#include "platform/quartz/cg_shading.h"

namespace kelvane {

/// What some outputs can show, and others cannot.
struct CGCapabilities {
  bool holdsJpeg = true;      // JPEG files as they are; else images are to be given as pixels
  bool combinesBits = false;  // marks whose bits are combined with those of what is there
};

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
  /// Makes the colour black, too, as does the next.
  void SetFillColorSpace(const CGColorSpace& space);
  void SetStrokeColorSpace(const CGColorSpace& space);
  void SetFillColor(const CGColor& color) {
    state_.fillColor = color;
    state_.fillPattern = nullptr;
  }
  void SetStrokeColor(const CGColor& color) {
    state_.strokeColor = color;
    state_.strokePattern = nullptr;
  }
  /// A null pattern gives the colour back.
  void SetFillPattern(CGSharedPattern pattern) { state_.fillPattern = std::move(pattern); }
  void SetStrokePattern(CGSharedPattern pattern) { state_.strokePattern = std::move(pattern); }
  void SetLineWidth(CGFloat width) { state_.lineWidth = width < 0 ? 0 : width; }
  void SetMiterLimit(CGFloat limit);  // not-a-number changes nothing
  void SetLineCap(CGLineCap cap) { state_.lineCap = cap; }
  void SetLineJoin(CGLineJoin join) { state_.lineJoin = join; }
  /// Lengths that are no lengths, or come to nothing, make the line solid.
  void SetLineDash(CGFloat phase, std::span<const CGFloat> lengths);
  void SetAlpha(CGFloat alpha);  // brought into 0 to 1; not-a-number changes nothing
  /// Marks are mixed from then on, even where they were combined bit by bit.
  void SetBlendMode(CGBlendMode mode) {
    state_.blendMode = mode;
    state_.bitOperation.reset();
  }
  /// Only for an output that combines bits.
  void SetBitOperation(CGBitOperation operation) { state_.bitOperation = operation; }
  void SetTextDrawingMode(CGTextDrawingMode mode) { state_.textMode = mode; }
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
  /// Makes a path in user space the current path; the CTM maps it where it lies.
  /// @param path  empty afterwards, with memory for the next one.
  void SwapPath(CGPath& path);
  [[nodiscard]] CGPoint PathCurrentPoint() const;

  // Marks.
  void DrawPath(CGPathDrawingMode mode);
  void Clip() { ClipToPath(false); }
  void EOClip() { ClipToPath(true); }
  /// A mask is painted with the fill colour or pattern.
  void DrawImage(const CGRect& rect, CGImageRef image);
  /// Colours all that the clip shows, or what of it a mesh covers. The shading is in user space;
  /// one that shows nothing (see Mapped) marks nothing.
  void DrawShading(const CGShading& shading);
  /// Draws the run; its matrix leads to user space. A run with a number that is not finite marks
  /// nothing.
  void DrawGlyphRun(const CGGlyphRun& run);

  // What is known of the page, for marks that depend on what lies below them.

  /// Keeps in mind until the page ends which colours marks leave, which takes a little longer.
  /// @param paper  the colour of the page with nothing on it.
  void WatchGround(const CGColor& paper) { ground_.emplace(paper); }

  /// @param box  page space.
  /// @return the colour that all of it has now; nullopt where that is not known, or not one.
  [[nodiscard]] std::optional<CGColor> GroundOf(const CGBox& box) const {
    return ground_ ? ground_->ColorOf(box) : std::nullopt;
  }

  /// @return which faces this output can show; to be asked before a face is chosen.
  [[nodiscard]] virtual CGFontFilter FontFilter() const = 0;

  /// @return what this output can show; to be asked before marks are chosen.
  [[nodiscard]] virtual CGCapabilities Capabilities() const { return {}; }

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
  /// @param shading  one that shows something.
  virtual void ShadingDrawn(const CGShading& shading) = 0;
  /// @param run  not empty; its matrix leads to page space.
  virtual void GlyphsDrawn(const CGGlyphRun& run) = 0;

 private:
  [[nodiscard]] CGPoint ToPage(CGPoint point) const {
    return CGPointApplyAffineTransform(point, state_.ctm);
  }
  void ClipToPath(bool isEvenOdd);
  void ResetPage();

  CGGraphicsState state_;
  CGSavedStates saved_;
  std::vector<CGClip> clips_;  // the first state_.clipCount are in effect
  std::uint64_t nextClipSerial_ = 1;
  CGPath path_;
  CGAffineTransform textMatrix_;
  std::optional<CGGround> ground_;
  bool inPage_ = false;
};

using CGContextRef = CGContext*;

/// Options a document may be given; there are none yet.
class CFDictionary;
using CFDictionaryRef = const CFDictionary*;

}  // namespace kelvane

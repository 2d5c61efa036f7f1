#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/quartz/cg_geometry.h"

namespace kelvane {

/// How glyphs are shown.
struct PdfTextStyle {
  std::string_view font;     // the page's name for it, with its slash
  int codeSize = 2;          // bytes a code
  CGFloat size = 0;          // text space units an em, above 0
  CGAffineTransform matrix;  // text space to page space
};

/// Glyphs on one baseline, gathered while each stands where one string with adjustments between its
/// glyphs can put it (ISO 32000-1, 9.4.3). Each stands within half a thousandth of an em and a
/// hundredth of a point of its place, whatever came before on the line: the pen moves as that of a
/// reader does, and is moved on where it would be further off.
class PdfTextLine {
 public:
  /// Starts over, its first glyph to come at `origin` of the style's text space.
  void Start(const PdfTextStyle& style, CGPoint origin);

  /// @return how far the pen has to move for a glyph in thousandths of an em, as it will be
  /// written;
  ///         nothing when the glyph does not continue the line.
  [[nodiscard]] std::optional<CGFloat> Gap(const PdfTextStyle& style, CGPoint origin) const;

  /// Moves the pen over a gap and a glyph. @param gap  what Gap gave, or 0 for the first.
  /// @param width  thousandths of an em, as the document has it.
  void Add(CGFloat gap, int width);

  /// True for a line without glyphs.
  [[nodiscard]] bool IsEmpty() const { return count_ == 0; }
  void Clear() { count_ = 0; }

  /// @return text space as it is with the first glyph at its origin, to page space.
  [[nodiscard]] const CGAffineTransform& Matrix() const { return matrix_; }

 private:
  std::string font_;
  CGFloat size_ = 0;
  CGAffineTransform matrix_;
  double scale_ = 1;      // page units a text space unit
  double tolerance_ = 0;  // along the line, thousandths of an em
  double pen_ = 0;        // behind the last glyph, text space units from the first
  int count_ = 0;
};

}  // namespace kelvane

#pragma once

#include <cstdint>
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
/// glyphs can put it (ISO 32000-1, 9.4.3). Positions are kept to a hundredth of a point up to 20
/// points an em, and relatively finer above, whatever came before on the line.
class PdfTextLine {
 public:
  /// Starts over with a first glyph at `origin` of the style's text space.
  void Start(const PdfTextStyle& style, CGPoint origin);

  /// @return how far the pen has to move for a glyph in thousandths of an em, as it will be
  /// written; nothing when
  ///         the glyph does not continue the line.
  [[nodiscard]] std::optional<CGFloat> Gap(const PdfTextStyle& style, CGPoint origin) const;

  /// Adds a glyph. @param gap  what Gap gave, or 0 for the first. @param width  thousandths of an
  /// em.
  void Add(CGFloat gap, std::uint16_t code, CGFloat width);

  [[nodiscard]] bool IsEmpty() const { return count_ == 0; }
  void Clear() { count_ = 0; }

  [[nodiscard]] std::string_view Font() const { return font_; }
  [[nodiscard]] CGFloat Size() const { return size_; }
  [[nodiscard]] const CGAffineTransform& Matrix() const {
    return matrix_;
  }  // origin at the first glyph

  /// @return the operand of TJ: "[<0001>-50<0002>]".
  [[nodiscard]] std::string Operand() const { return strings_ + ">]"; }

 private:
  std::string font_;
  int codeSize_ = 2;
  CGFloat size_ = 0;
  CGAffineTransform matrix_;
  double scale_ = 1;    // page units a text space unit
  double quantum_ = 1;  // of adjustments, thousandths of an em
  double pen_ = 0;      // behind the last glyph, text space units from the first
  int count_ = 0;
  std::string strings_;
};

}  // namespace kelvane

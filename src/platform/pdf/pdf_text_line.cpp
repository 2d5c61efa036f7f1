#include "platform/pdf/pdf_text_line.h"

#include <algorithm>
#include <cmath>

namespace kelvane {
namespace {

// There are readers that add up widths in single precision, which shows after some hundred glyphs.
// A wide gap is better a new position than a number.
constexpr int kMostGlyphs = 100;
constexpr double kWidestGap = 30000;  // thousandths of an em

// Of the tolerance along the line, what is tolerated across it. Both together are hardly more than
// the former alone.
constexpr double kShareAcross = 0.4;

/// How far from its place a glyph may stand on the baseline. @param em  page units.
/// @return thousandths of an em.
double Tolerance(double em) {
  constexpr double kThousandths = 0.5;  // what whole numbers are enough for
  constexpr double kPageUnits = 0.01;
  return std::min(kThousandths, kPageUnits / em * 1000);
}

/// @return the number of the fewest decimals that is near enough to `exact`: whole where that will
/// do, and most often 0.
double Rounded(double exact, double tolerance) {
  constexpr int kFinest = 1000;
  double rounded = std::round(exact);
  for (int parts = 10; parts <= kFinest && std::abs(rounded - exact) > tolerance; parts *= 10) {
    rounded = std::round(exact * parts) / parts;
  }
  return rounded;
}

struct Offset {
  double along;   // text space units
  double across;  // text space units
};

/// @return `to` as seen from the origin of `from`, in the axes of `from`, whose determinant is not
/// 0.
Offset OffsetBetween(const CGAffineTransform& from, double x, double y) {
  const double determinant = Determinant(from);
  const double dx = x - from.tx;
  const double dy = y - from.ty;
  return {(dx * from.d - dy * from.c) / determinant, (dy * from.a - dx * from.b) / determinant};
}

bool HasSameAxes(const CGAffineTransform& one, const CGAffineTransform& other) {
  return one.a == other.a && one.b == other.b && one.c == other.c && one.d == other.d;
}

}  // namespace

void PdfTextLine::Start(const PdfTextStyle& style, CGPoint origin) {
  font_ = style.font;
  size_ = style.size;
  matrix_ = style.matrix;
  const CGPoint onPage = CGPointApplyAffineTransform(origin, style.matrix);
  matrix_.tx = onPage.x;
  matrix_.ty = onPage.y;
  scale_ = LengthScale(matrix_);
  tolerance_ = Tolerance(size_ * scale_);
  pen_ = 0;
  count_ = 0;
}

std::optional<CGFloat> PdfTextLine::Gap(const PdfTextStyle& style, CGPoint origin) const {
  if (IsEmpty() || count_ >= kMostGlyphs || scale_ == 0 || style.size != size_ ||
      style.font != font_ || !HasSameAxes(style.matrix, matrix_)) {
    return std::nullopt;
  }
  const CGAffineTransform& m = style.matrix;
  const Offset offset =
      OffsetBetween(matrix_, double{m.a} * origin.x + double{m.c} * origin.y + m.tx,
                    double{m.b} * origin.x + double{m.d} * origin.y + m.ty);
  const double gap = Rounded((offset.along - pen_) / size_ * 1000, tolerance_);
  const double across = std::abs(offset.across) / size_ * 1000;
  if (!(across <= kShareAcross * tolerance_) || !(std::abs(gap) <= kWidestGap)) return std::nullopt;
  return static_cast<CGFloat>(gap);
}

void PdfTextLine::Add(CGFloat gap, int width) {
  pen_ += (static_cast<double>(gap) + width) * size_ / 1000;
  ++count_;
}

}  // namespace kelvane

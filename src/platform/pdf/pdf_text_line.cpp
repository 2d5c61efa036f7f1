#include "platform/pdf/pdf_text_line.h"

#include <cmath>

namespace kelvane {
namespace {

// Readers of documents limit the length of an array; a wide gap is better a new position than a
// number.
constexpr int kMostGlyphs = 1000;
constexpr double kWidestGap = 30000;  // thousandths of an em

constexpr double kBaselineTolerance = 0.0005;  // ems

/// @param em  page units.
double Quantum(double em) {
  if (em <= 20) return 1;
  if (em <= 200) return 0.1;
  if (em <= 2000) return 0.01;
  return 0.001;
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
  scale_ = std::sqrt(std::abs(Determinant(matrix_)));
  quantum_ = Quantum(size_ * scale_);
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
  const double gap = std::round((offset.along - pen_) / size_ * 1000 / quantum_) * quantum_;
  if (!(std::abs(offset.across) <= kBaselineTolerance * size_) || !(std::abs(gap) <= kWidestGap)) {
    return std::nullopt;
  }
  return static_cast<CGFloat>(gap);
}

void PdfTextLine::Add(CGFloat gap, CGFloat width) {
  pen_ += (static_cast<double>(gap) + width) * size_ / 1000;
  ++count_;
}

}  // namespace kelvane

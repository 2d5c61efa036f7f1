#include "platform/raster/raster_stroke.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <vector>

#include "platform/raster/raster_dashes.h"
#include "platform/raster/raster_extent.h"
#include "platform/raster/raster_geometry.h"
#include "platform/raster/raster_lines.h"
#include "platform/raster/raster_mask.h"

namespace kelvane {
namespace {

constexpr std::array<cairo_line_cap_t, 3> kCaps = {CAIRO_LINE_CAP_BUTT, CAIRO_LINE_CAP_ROUND,
                                                   CAIRO_LINE_CAP_SQUARE};
constexpr std::array<cairo_line_join_t, 3> kJoins = {CAIRO_LINE_JOIN_MITER, CAIRO_LINE_JOIN_ROUND,
                                                     CAIRO_LINE_JOIN_BEVEL};

/// How lines are drawn.
struct Pen {
  Pen(const CGAffineTransform& pageToPixels, const CGStrokeGeometry& stroke,
      const CGGraphicsState& drawn)
      : state(drawn), isDeformed(stroke.throughTransform) {
    const auto pixels = static_cast<CGFloat>(LengthScale(pageToPixels));
    toPixels = isDeformed ? CGAffineTransformConcat(stroke.transform, pageToPixels)
                          : CGAffineTransform{pixels, 0, 0, pixels, 0, 0};
    const double scale = isDeformed ? 1 : pixels;
    const double thinnest = isDeformed ? 0 : 1;
    drawnWidth = std::max(stroke.width * scale, thinnest);
    width = drawnWidth / scale;
  }

  [[nodiscard]] bool IsSqueezedToNothing() const { return !(LengthScale(toPixels) > 0); }

  /// @return how far its lines reach beyond a path, pixels.
  [[nodiscard]] double Reach() const {
    const double longest =
        std::max(std::hypot(toPixels.a, toPixels.b), std::hypot(toPixels.c, toPixels.d));
    return width * longest * std::max<double>(state.miterLimit, 1);
  }

  /// Strokes the current path. A matrix deforms the pen, and not the path, which is there already.
  void Stroke(cairo_t* drawing) const {
    cairo_save(drawing);
    if (isDeformed) {
      const cairo_matrix_t matrix = MatrixOf(toPixels);
      cairo_transform(drawing, &matrix);
    }
    cairo_set_line_width(drawing, drawnWidth);
    cairo_set_line_cap(drawing, kCaps[state.lineCap]);
    cairo_set_line_join(drawing, kJoins[state.lineJoin]);
    cairo_set_miter_limit(drawing, state.miterLimit);
    cairo_stroke(drawing);
    cairo_restore(drawing);
  }

  const CGGraphicsState& state;
  bool isDeformed;
  CGAffineTransform toPixels;  // from its own lengths
  double width;                // in these
  double drawnWidth;           // under the matrix of the time of the stroke
};

/// Takes the lines of a path to say what there is.
class StrokeOverview {
 public:
  struct Figure {
    std::size_t lines = 0;
    bool isClosed = false;
  };

  void Move(RasterPoint to) {
    figures_.emplace_back();
    extent_.Move(to);
  }

  void Line(RasterPoint to) {
    ++figures_.back().lines;
    extent_.Line(to);
  }

  void Close() {
    figures_.back().isClosed = true;
    extent_.Close();
  }

  [[nodiscard]] const RasterExtent& Extent() const { return extent_; }
  [[nodiscard]] std::span<const Figure> Figures() const { return figures_; }

 private:
  RasterExtent extent_;
  std::vector<Figure> figures_;
};

/// Takes the lines of a path and strokes them a piece after the other. Pieces end in the middle of
/// a line, where they fit: what two cover of a pixel adds up.
class PieceStroker {
 public:
  /// @param figures  of the path. All stay the caller's.
  PieceStroker(const RasterMask& mask, const Pen& pen,
               std::span<const StrokeOverview::Figure> figures)
      : drawing_(cairo_create(mask.Pixels())), pen_(pen), figures_(figures) {
    cairo_translate(drawing_.get(), -mask.Left(), -mask.Top());
    cairo_set_operator(drawing_.get(), CAIRO_OPERATOR_ADD);
  }

  /// A closed figure in pieces begins and ends in the middle of its first line, for a corner where
  /// it closes.
  void Move(RasterPoint to) {
    figure_ = figures_.front();
    figures_ = figures_.subspan(1);
    if (count_ + figure_.lines > kMostLines) End();
    isInPieces_ = figure_.lines > kMostLines;
    isBeforeStart_ = isInPieces_ && figure_.isClosed;
    first_ = at_ = to;
    if (!isBeforeStart_) MoveTo(to);
    ++count_;
  }

  void Line(RasterPoint to) {
    if (isBeforeStart_) {
      start_ = Middle(at_, to);
      MoveTo(start_);
      isBeforeStart_ = false;
    } else if (isInPieces_ && count_ >= kMostLines) {
      Cut(Middle(at_, to));
    }
    LineTo(to);
    at_ = to;
  }

  void Close() {
    if (!isInPieces_) return cairo_close_path(drawing_.get());
    LineTo(first_);
    LineTo(start_);
  }

  void End() {
    if (count_ > 0) pen_.Stroke(drawing_.get());
    count_ = 0;
  }

 private:
  static constexpr std::size_t kMostLines = 16;

  void Cut(RasterPoint at) {
    LineTo(at);
    End();
    MoveTo(at);
  }

  void MoveTo(RasterPoint to) { cairo_move_to(drawing_.get(), to.x, to.y); }

  void LineTo(RasterPoint to) {
    cairo_line_to(drawing_.get(), to.x, to.y);
    ++count_;
  }

  static RasterPoint Middle(RasterPoint a, RasterPoint b) {
    return {(a.x + b.x) / 2, (a.y + b.y) / 2};
  }

  CairoOwned<cairo_t> drawing_;
  const Pen& pen_;
  std::span<const StrokeOverview::Figure> figures_;  // which are to come
  StrokeOverview::Figure figure_;
  bool isInPieces_ = false;
  bool isBeforeStart_ = false;
  RasterPoint first_ = {0, 0};
  RasterPoint start_ = {0, 0};
  RasterPoint at_ = {0, 0};
  std::size_t count_ = 0;  // of the lines and figures at hand
};

/// Strokes the lines of a path. Cairo fills what all its lines cover, and that takes as long as
/// they cross: of many lines up to their square.
/// @param strokeFew  strokes all at once. @param giveLines  gives them to one who takes them.
template <class GiveLines, class StrokeFew>
void StrokeLines(cairo_t* drawing, const Pen& pen, const GiveLines& giveLines,
                 const StrokeFew& strokeFew) {
  constexpr std::size_t kFewLines = 512;
  StrokeOverview overview;
  giveLines(overview);
  if (overview.Extent().Lines() <= kFewLines) return strokeFew();
  const RasterMask mask(drawing, overview.Extent().Box().Grown(pen.Reach() + 1));
  if (mask.IsEmpty()) return;
  PieceStroker pieces(mask, pen, overview.Figures());
  giveLines(pieces);
  pieces.End();
  mask.Paint(drawing);
}

/// Makes lines the current path of a drawing.
struct CairoPath {
  void Move(RasterPoint to) const { cairo_move_to(drawing, to.x, to.y); }
  void Line(RasterPoint to) const { cairo_line_to(drawing, to.x, to.y); }

  cairo_t* drawing;
};

void StrokeDashes(cairo_t* drawing, const Pen& pen, const RasterFigures& dashes) {
  StrokeLines(
      drawing, pen, [&dashes](auto& sink) { dashes.GiveTo(sink); },
      [&] {
        CairoPath current = {drawing};
        cairo_new_path(drawing);
        dashes.GiveTo(current);
        pen.Stroke(drawing);
      });
}

void StrokeSolid(cairo_t* drawing, const Pen& pen, const CGPath& path,
                 const CGAffineTransform& toPixels) {
  StrokeLines(
      drawing, pen, [&](auto& sink) { GiveLines(path, toPixels, sink); },
      [&] {
        SetPath(drawing, path, toPixels);
        pen.Stroke(drawing);
      });
}

}  // namespace

void StrokePath(cairo_t* drawing, const CGPath& path, const CGAffineTransform& toPixels,
                const CGStrokeGeometry& stroke, const CGGraphicsState& state,
                std::size_t& dashesLeft) {
  const Pen pen(toPixels, stroke, state);
  if (pen.IsSqueezedToNothing()) return;
  if (state.dash.IsSolid()) return StrokeSolid(drawing, pen, path, toPixels);
  RasterDashes dashes = {{}, state.dash.phase * stroke.scale, pen.toPixels};
  for (const CGFloat length : state.dash.lengths)
    dashes.lengths.push_back(double{length} * stroke.scale);
  const RasterBox seen = SeenBox(drawing).Grown(pen.Reach());
  StrokeDashes(drawing, pen, CutIntoDashes(path, toPixels, dashes, seen, dashesLeft));
}

}  // namespace kelvane

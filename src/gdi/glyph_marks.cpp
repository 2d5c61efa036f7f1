#include "gdi/glyph_marks.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "gdi/exactly.h"

namespace kelvane {
namespace {

/// What leads from the line's own axes into those of its glyphs, in ems.
std::optional<TransformD> LineToEms(const TextFrame& frame) {
  const TransformD emsToDevice = {frame.glyphAlong.x, frame.glyphAlong.y, frame.glyphUp.x,
                                  frame.glyphUp.y};
  const auto deviceToEms = emsToDevice.Inverse();
  if (!deviceToEms) return std::nullopt;
  const TransformD lineToDevice = {frame.along.x, frame.along.y, frame.up.x, frame.up.y};
  TransformD lineToEms = lineToDevice.Then(*deviceToEms);
  // Glyphs that turn with their line do not leave it by the last digits of a sine.
  constexpr double kNoise = 1e-9;
  if (std::abs(lineToEms.m12) < kNoise * std::abs(lineToEms.m11)) lineToEms.m12 = 0;
  if (std::abs(lineToEms.m21) < kNoise * std::abs(lineToEms.m22)) lineToEms.m21 = 0;
  return lineToEms;
}

/// The axes of glyphs on the page, and how large an em is there.
struct PageFrame {
  CGAffineTransform matrix;  // text space, in which an em is `size`, to the page
  CGFloat size;
};

PageFrame OnPage(const Canvas& canvas, const TextFrame& frame, PointD origin) {
  const TransformD ems = {frame.glyphAlong.x, frame.glyphAlong.y, frame.glyphUp.x,
                          frame.glyphUp.y,    origin.x,           origin.y};
  TransformD onPage = ems.Then(Exactly(canvas.DeviceToPage()));
  const double size = std::hypot(onPage.m21, onPage.m22);
  onPage.m11 /= size;
  onPage.m12 /= size;
  onPage.m21 /= size;
  onPage.m22 /= size;
  CGAffineTransform matrix = Rounded(onPage);
  const CGPoint rounded = canvas.RoundOnPage({matrix.tx, matrix.ty});
  matrix.tx = rounded.x;
  matrix.ty = rounded.y;
  return {matrix, static_cast<CGFloat>(size)};
}

void DrawRun(CGContext& surface, PlacedRun& run, const TransformD& lineToEms,
             const PageFrame& page) {
  for (CGPositionedGlyph& glyph : run.glyphs) {
    const PointD ems = lineToEms.MapVector({glyph.origin.x, glyph.origin.y});
    glyph.origin = {static_cast<CGFloat>(ems.x * page.size),
                    static_cast<CGFloat>(ems.y * page.size)};
  }
  surface.DrawGlyphRun({run.face.typeface->Font(), page.size, page.matrix, run.glyphs,
                        run.face.isSlanted, run.face.isEmboldened});
}

/// @return the em of a run's glyphs as they lie on the device, in units of the face.
TransformD GlyphsToDevice(const PlacedRun& run, const TextFrame& frame) {
  const double units = run.face.typeface->Font()->Description().unitsPerEm;
  const TransformD matrix = {frame.glyphAlong.x / units, frame.glyphAlong.y / units,
                             frame.glyphUp.x / units, frame.glyphUp.y / units};
  return run.face.isSlanted ? TransformD{1, 0, kCGSlant.c, 1}.Then(matrix) : matrix;
}

}  // namespace

void DrawGlyphs(Canvas& canvas, PlacedLine& line, const TextFrame& frame, PointD origin) {
  for (PlacedRun& run : line.runs) {
    const TextFrame runFrame = run.isTurned ? frame.Turned() : frame;
    const auto lineToEms = LineToEms(runFrame);
    if (lineToEms) DrawRun(canvas.Surface(), run, *lineToEms, OnPage(canvas, runFrame, origin));
  }
}

bool AddOutlines(Canvas* canvas, const PlacedLine& line, const TextFrame& frame, PointD origin,
                 OutlineUse use, CGPath& path) {
  const std::size_t elementsOfAPart = use == OutlineUse::kKept ? 1 : 8;
  for (const PlacedRun& run : line.runs) {
    TransformD matrix = GlyphsToDevice(run, run.isTurned ? frame.Turned() : frame);
    for (const CGPositionedGlyph& glyph : run.glyphs) {
      const PointD place = frame.ToDevice({glyph.origin.x, glyph.origin.y});
      matrix.dx = origin.x + place.x;
      matrix.dy = origin.y + place.y;
      const CGPath outline = run.face.typeface->Font()->Outline(glyph.glyph);
      const std::size_t elements = outline.Reached().elements;
      if (canvas != nullptr && !canvas->Afford(elements / elementsOfAPart)) return false;
      path.AddPath(outline, Rounded(matrix));
    }
  }
  return true;
}

void AddLineBox(const TextFrame& frame, PointD origin, const RectangleD& box, CGPath& path) {
  const auto corner = [&](double x, double y) {
    const PointD place = frame.ToDevice({x, y});
    return CGPoint{static_cast<CGFloat>(origin.x + place.x),
                   static_cast<CGFloat>(origin.y + place.y)};
  };
  path.MoveTo(corner(box.left, box.top));
  path.LineTo(corner(box.right, box.top));
  path.LineTo(corner(box.right, box.bottom));
  path.LineTo(corner(box.left, box.bottom));
  path.Close();
}

void AddRule(const TextRule& rule, const TextFont& font, double from, double to,
             const TextFrame& frame, PointD origin, CGPath& path) {
  const double pixel = 1 / frame.PixelsUp();
  const double top = rule.top * font.em;
  const double thickness = std::max(rule.thickness * font.em, pixel);
  AddLineBox(frame, origin, {from, top - thickness, to, top}, path);
}

}  // namespace kelvane

#include "gdi/glyph_marks.h"

#include <cmath>
#include <optional>

#include "gdi/page_color.h"
#include "gdi/painting.h"

namespace kelvane {
namespace {

/// What leads from the line's own axes into those of its glyphs, in ems.
std::optional<TransformD> LineToEms(const TextFrame& frame) {
  const TransformD emsToDevice = {frame.glyphAlong.x, frame.glyphAlong.y, frame.glyphUp.x,
                                  frame.glyphUp.y};
  const auto deviceToEms = emsToDevice.Inverse();
  if (!deviceToEms) return std::nullopt;
  const TransformD lineToDevice = {frame.along.x, frame.along.y, frame.up.x, frame.up.y};
  return lineToDevice.Then(*deviceToEms);
}

CGAffineTransform Rounded(const TransformD& t) {
  return {static_cast<CGFloat>(t.m11), static_cast<CGFloat>(t.m12), static_cast<CGFloat>(t.m21),
          static_cast<CGFloat>(t.m22), static_cast<CGFloat>(t.dx),  static_cast<CGFloat>(t.dy)};
}

/// The axes of glyphs on the page, and how large an em is there.
struct PageFrame {
  CGAffineTransform matrix;  // text space, in which an em is `size`, to the page
  CGFloat size;
};

PageFrame OnPage(const Canvas& canvas, const TextFrame& frame, PointD origin) {
  const CGAffineTransform& page = canvas.DeviceToPage();
  const TransformD deviceToPage = {page.a, page.b, page.c, page.d, page.tx, page.ty};
  const TransformD ems = {frame.glyphAlong.x, frame.glyphAlong.y, frame.glyphUp.x,
                          frame.glyphUp.y,    origin.x,           origin.y};
  TransformD onPage = ems.Then(deviceToPage);
  const auto size = static_cast<CGFloat>(std::hypot(onPage.m21, onPage.m22));
  onPage.m11 /= size;
  onPage.m12 /= size;
  onPage.m21 /= size;
  onPage.m22 /= size;
  CGAffineTransform matrix = Rounded(onPage);
  const CGPoint rounded = canvas.RoundOnPage({matrix.tx, matrix.ty});
  matrix.tx = rounded.x;
  matrix.ty = rounded.y;
  return {matrix, size};
}

}  // namespace

void DrawGlyphs(DeviceContext& device, PlacedLine& line, const TextFrame& frame, PointD origin,
                RgbColor color) {
  const auto lineToEms = LineToEms(frame);
  if (!lineToEms || !BringClip(device)) return;
  CGContext& surface = device.canvas->Surface();
  surface.SetFillColor(ColorOnPage(color));
  surface.SetFillPattern(nullptr);
  surface.SetBlendMode(kCGBlendModeNormal);
  const PageFrame page = OnPage(*device.canvas, frame, origin);
  for (PlacedRun& run : line.runs) {
    for (CGPositionedGlyph& glyph : run.glyphs) {
      const PointD ems = lineToEms->MapVector({glyph.origin.x, glyph.origin.y});
      glyph.origin = {static_cast<CGFloat>(ems.x * page.size),
                      static_cast<CGFloat>(ems.y * page.size)};
    }
    surface.DrawGlyphRun({run.face.typeface->Font(), page.size, page.matrix, run.glyphs,
                          run.face.isSlanted, run.face.isEmboldened});
  }
}

void AddOutlines(const PlacedLine& line, const TextFrame& frame, PointD origin, CGPath& path) {
  for (const PlacedRun& run : line.runs) {
    const CGFont& font = *run.face.typeface->Font();
    const double units = font.Description().unitsPerEm;
    TransformD matrix = {frame.glyphAlong.x / units, frame.glyphAlong.y / units,
                         frame.glyphUp.x / units, frame.glyphUp.y / units};
    if (run.face.isSlanted) matrix = TransformD{1, 0, kCGSlant.c, 1}.Then(matrix);
    for (const CGPositionedGlyph& glyph : run.glyphs) {
      const PointD place = frame.ToDevice({glyph.origin.x, glyph.origin.y});
      matrix.dx = origin.x + place.x;
      matrix.dy = origin.y + place.y;
      path.AddPath(font.Outline(glyph.glyph), Rounded(matrix));
    }
  }
}

}  // namespace kelvane

#include "drawing_samples.h"

#include <array>
#include <cmath>
#include <numbers>

#include "sample_page.h"

namespace kelvane::samples {
namespace {

using test::At;
using test::Metafile;
using test::Points;

constexpr std::int32_t kCounterClockwise = 1;
constexpr std::int32_t kClockwise = 2;

void AddHeart(Metafile& page) {
  Select(page, kCoral, kNight);
  page.BeginPath().MoveTo(105, 255);
  page.PolybezierTo({{10, 190}, {50, 100}, {105, 150}, {160, 100}, {200, 190}, {105, 255}});
  page.EndPath().StrokeAndFillPath();
}

void AddFlower(Metafile& page) {
  constexpr At kCentre = {245, 180};
  Select(page, kSky, kNight);
  for (int degrees = 0; degrees < 360; degrees += 60) {
    page.BeginPath();
    page.Polybezier(
        {kCentre, Polar(kCentre, 115, degrees - 28), Polar(kCentre, 115, degrees + 28), kCentre});
    page.EndPath().StrokeAndFillPath();
  }
  Select(page, kGold, kNight);
  page.Ellipse({kCentre.x - 18, kCentre.y - 18, kCentre.x + 18, kCentre.y + 18});
}

/// Half circles, each 8 wider than the one before.
void AddSpiral(Metafile& page) {
  page.SelectObject(Pen(kLeaf)).BeginPath().MoveTo(392, 180);
  for (int i = 0; i < 8; ++i) {
    const bool right = i % 2 == 1;
    page.AngleArc({right ? 392 : 384, 180}, 8 + 8 * static_cast<std::uint32_t>(i), right ? 180 : 0,
                  180);
  }
  page.EndPath().StrokePath();
}

void AddArcWave(Metafile& page) {
  page.SelectObject(Pen(kBrown)).BeginPath().MoveTo(30, 50);
  for (int i = 0; i < 7; ++i) {
    const bool crest = i % 2 == 0;
    page.SetArcDirection(crest ? kClockwise : kCounterClockwise);
    page.AngleArc({60 + 60 * i, 50}, 30, 180, crest ? -180 : 180);
  }
  page.EndPath().StrokePath();
}

void AddSun(Metafile& page) {
  Select(page, kGold, kGold);
  page.Ellipse({350, 30, 430, 110}).Arc({338, 18, 442, 122}, {390, 18}, {442, 70});
  page.Pie({350, 30, 430, 110}, {430, 70}, {390, 30});
  Select(page, kBrown, kBrown);
  page.Ellipse({373, 56, 379, 62}).Ellipse({401, 56, 407, 62});
  page.BeginPath().AngleArc({390, 66}, 24, 210, 120).EndPath().StrokePath();
}

void AddHouse(Metafile& page) {
  Select(page, kSand, kBrown);
  page.Rectangle({130, 170, 260, 270});
  Select(page, kCoral, kBrown);
  page.Polygon({{115, 170}, {195, 100}, {275, 170}, {115, 170}});
  Select(page, kBrown, kBrown);
  page.Rectangle({150, 205, 185, 270});
  Select(page, kSky, kBrown);
  page.Rectangle({205, 195, 240, 230});
  page.MoveTo(222, 195).LineTo(222, 230).MoveTo(205, 212).LineTo(240, 212);
}

/// Squares inside squares: each transform starts from the one before.
void AddNestedSquares(Metafile& page) {
  constexpr std::array kFills = {kNight, kSand};
  page.SaveDC().SetWorldTransform(Turned(0, 1, {370, 215}));
  for (std::size_t i = 0; i < 10; ++i) {
    page.ModifyWorldTransform(Turned(12, 0.84, {0, 0}), kApplyFirst);
    Select(page, kFills[i % 2], kNight);
    page.Rectangle({-80, -80, 80, 80});
  }
  page.RestoreDC();
}

/// The same circle and square widened, sheared and mirrored, their outlines with them.
void AddStretchedShapes(Metafile& page) {
  constexpr std::array<XForm, 3> kTransforms = {
      {{2, 0, 0, 0.75F, 290, 60}, {1, 0, 0.5F, 1, 375, 60}, {-1, 0, 0, -1.5F, 435, 60}}};
  Select(page, kLeaf, kBrown);
  for (const XForm& transform : kTransforms) {
    page.SaveDC().ModifyWorldTransform(transform, kReplace);
    page.Rectangle({-20, -20, 20, 20}).Ellipse({-12, -12, 12, 12}).RestoreDC();
  }
}

/// A chart in units of its own, 0 to 1000 both ways with y upwards.
/// A sunset seen through a round window.
void AddWindow(Metafile& page) {
  constexpr RectangleL kWindow = {30, 40, 270, 280};
  page.SaveDC().BeginPath().Ellipse(kWindow).EndPath().SelectClipPath(kIntersect);
  constexpr std::array kSkyBands = {kNight, kBrown, kCoral, kGold, kSand};
  for (std::int32_t i = 0; i < 5; ++i) {
    const Ink ink = kSkyBands[static_cast<std::size_t>(i)];
    Select(page, ink, ink);
    page.Rectangle({30, 40 + 30 * i, 270, 70 + 30 * i});
  }
  Select(page, kCoral, kGold);
  page.Ellipse({110, 145, 190, 225});
  Select(page, kNight, kNight);
  page.Rectangle({30, 190, 270, 280});
  page.SelectObject(Pen(kSky));
  for (std::int32_t i = 0; i < 4; ++i)
    page.MoveTo(100 + 12 * i, 200 + 15 * i).LineTo(200 - 12 * i, 200 + 15 * i);
  page.RestoreDC().SelectObject(Pen(kBrown)).BeginPath().Ellipse(kWindow).EndPath().StrokePath();
}

/// Two figures, one inside the other and the other way round: a fill that leaves a hole.
void AddFrame(Metafile& page) {
  page.SelectObject(Brush(kLeaf)).BeginPath();
  page.MoveTo(310, 40).PolylineTo({{450, 40}, {450, 150}, {310, 150}, {310, 40}}).CloseFigure();
  page.MoveTo(335, 65).PolylineTo({{335, 125}, {425, 125}, {425, 65}, {335, 65}}).CloseFigure();
  page.EndPath().FillPath();
}

}  // namespace

Metafile Lines() {
  Metafile page = Page();
  const std::uint32_t thinCoral = kFirstFreeIndex;
  const std::uint32_t thinNight = kFirstFreeIndex + 1;
  page.CreatePen(thinCoral, 1, kColors[kCoral]).CreatePen(thinNight, 1, kColors[kNight]);
  for (std::int32_t i = 0; i <= 260; i += 13) {
    page.SelectObject(thinNight).MoveTo(30, 30 + i).LineTo(30 + i, 290);
    page.SelectObject(thinCoral).MoveTo(290, 290 - i).LineTo(290 - i, 30);
  }
  Points spiral;
  for (int i = 0; i <= 90; ++i)
    spiral.push_back(Polar({385, 220}, 0.75 * i, 15.0 * i));
  page.SelectObject(Pen(kLeaf)).Polyline(spiral);
  for (std::int32_t width = 1; width <= 6; ++width) {
    const auto pen = thinNight + static_cast<std::uint32_t>(width);
    const std::int32_t y = 20 + 18 * width;
    page.CreatePen(pen, width, kColors[kGold]).SelectObject(pen);
    page.MoveTo(330, y).LineTo(360, y - 10).LineTo(410, y + 10).LineTo(440, y);
  }
  return page;
}

Metafile Polygons() {
  Metafile page = Page();
  constexpr std::array kFills = {kCoral, kGold, kLeaf, kSky, kSand};
  for (int i = 0; i < 5; ++i) {
    Select(page, kFills[static_cast<std::size_t>(i)], kNight);
    page.Polygon(Star({60 + 90 * i, 80}, 38, 3 + i, 1), i % 2 == 1);
  }
  Select(page, kGold, kCoral);
  page.Polygon(Star({90, 220}, 75, 5, 2));
  Select(page, kNight, kNight);
  page.PolyPolygon({Star({240, 220}, 75, 6, 1), Star({240, 220}, 50, 6, 1)});
  page.SelectObject(Pen(kLeaf)).SelectObject(test::kStockNullBrush);
  page.Polygon(Star({390, 220}, 75, 9, 4));
  return page;
}

Metafile Curves() {
  Metafile page = Page();
  AddArcWave(page);
  AddHeart(page);
  AddFlower(page);
  AddSpiral(page);
  constexpr std::array kWaves = {kSky, kNight};
  for (std::int32_t i = 0; i < 2; ++i) {
    const std::int32_t y = 282 + 12 * i;
    Points wave = {{30, y}};
    for (std::int32_t x = 30; x < 450; x += 60) {
      wave.insert(wave.end(), {{x + 20, y - 25}, {x + 40, y + 25}, {x + 60, y}});
    }
    page.SelectObject(Pen(kWaves[static_cast<std::size_t>(i)])).Polybezier(wave, i == 1);
  }
  return page;
}

Metafile Shapes() {
  Metafile page = Page();
  Select(page, kSky, kSky);
  page.Rectangle({0, 0, 480, 320});
  AddSun(page);
  Select(page, kWhite, kWhite);
  page.Ellipse({40, 50, 110, 80}).Ellipse({80, 35, 150, 75}).Ellipse({110, 52, 185, 82});
  Select(page, kLeaf, kLeaf);
  page.Ellipse({-120, 240, 330, 420}).Ellipse({180, 255, 640, 430});
  AddHouse(page);
  Select(page, kBrown, kBrown);
  page.Rectangle({352, 215, 368, 290});
  Select(page, kLeaf, kNight);
  page.RoundRectangle({315, 140, 405, 240}, 40, 40);
  page.Chord({315, 140, 405, 240}, {405, 190}, {315, 190})
      .ArcTo({315, 140, 405, 240}, {0, 0}, {9, 9});
  return page;
}

Metafile Transforms() {
  Metafile page = Page();
  constexpr std::array kFills = {kGold, kCoral, kSky};
  page.SaveDC();
  for (std::size_t i = 0; i < 12; ++i) {
    page.ModifyWorldTransform(Turned(30.0 * static_cast<double>(i), 1, {130, 160}), kReplace);
    Select(page, kFills[i % 3], kNight);
    page.Ellipse({25, -17, 115, 17});
  }
  page.RestoreDC();
  AddStretchedShapes(page);
  AddNestedSquares(page);
  return page;
}

Metafile Chart() {
  constexpr std::int32_t kAnisotropic = 8;
  constexpr std::array<std::int32_t, 7> kValues = {310, 450, 390, 620, 560, 780, 900};
  Metafile page = Page();
  const std::uint32_t boldPen = kFirstFreeIndex;
  page.CreatePen(boldPen, 8, kColors[kCoral]);
  page.SetMapMode(kAnisotropic).SetWindowOrg(0, 1000).SetWindowExt(1000, -1000);
  page.SetViewportOrg(50, 25).SetViewportExt(400, 260);

  page.SelectObject(Pen(kSand));
  for (std::int32_t y = 200; y <= 1000; y += 200)
    page.MoveTo(0, y).LineTo(1000, y);
  Select(page, kSky, kNight);
  Points line;
  for (const std::int32_t value : kValues) {
    const std::int32_t left = 30 + 140 * static_cast<std::int32_t>(line.size());
    page.Rectangle({left, value, left + 100, 0});
    line.push_back({left + 50, value + 60 - value / 5});
  }
  page.MoveTo(0, 1000).LineTo(0, 0).LineTo(1000, 0);
  for (std::int32_t y = 0; y <= 1000; y += 200)
    page.MoveTo(-15, y).LineTo(0, y);

  page.SelectObject(boldPen).Polyline(line).SelectObject(Brush(kGold));
  for (const At& p : line)
    page.Ellipse({p.x - 14, p.y + 21, p.x + 14, p.y - 21});
  return page;
}

Metafile Paths() {
  Metafile page = Page();
  AddWindow(page);
  AddFrame(page);
  Select(page, kGold, kBrown);
  page.BeginPath().Polyline(Star({380, 228}, 55, 7, 3)).EndPath().StrokeAndFillPath();
  return page;
}

}  // namespace kelvane::samples

// A Windows metafile of each function, beside the enhanced one whose record is the same call: both
// leave the same marks. A unit of either is a point of the page.

#include <functional>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "players/traced_metafile.h"
#include "players/wmf/wmf_page.h"
#include "support/metafile.h"
#include "support/windows_metafile.h"

namespace kelvane::test {
namespace {

// Records of EMF that the builder has no names for.
constexpr std::uint32_t kSetPixel = 15;
constexpr std::uint32_t kSetPolyFillMode = 19;
constexpr std::uint32_t kSetRop2 = 20;
constexpr std::uint32_t kOffsetClip = 26;
constexpr std::uint32_t kExcludeClip = 29;
constexpr std::uint32_t kIntersectClip = 30;
constexpr std::uint32_t kScaleViewport = 31;
constexpr std::uint32_t kScaleWindow = 32;
constexpr std::uint32_t kFillRegion = 71;
constexpr std::uint32_t kFrameRegion = 72;
constexpr std::uint32_t kInvertRegion = 73;
constexpr std::uint32_t kPaintRegion = 74;
constexpr std::uint32_t kSelectClipRegion = 75;
constexpr std::uint32_t kSetLayout = 115;
constexpr std::uint32_t kSetTextJustification = 120;

struct FunctionRow {
  std::uint16_t function;
  std::string name;
  std::function<void(WindowsMetafile&)> windows;
  std::function<void(Metafile&)> enhanced;
};

void PrintTo(const FunctionRow& row, std::ostream* out) {
  *out << row.name;
}

/// A region of one rectangle, as EMF has it in records.
Bytes RegionOf(const RectangleL& r) {
  return Bytes()
      .U32(32)
      .U32(1)
      .U32(1)
      .U32(16)
      .Rectangle(r.left, r.top, r.right, r.bottom)
      .Rectangle(r.left, r.top, r.right, r.bottom);
}

/// A record that paints such a region. @param fields  between its size and the region.
Bytes PaintedRegion(const RectangleL& r, const Bytes& fields = {}) {
  return Bytes()
      .Rectangle(r.left, r.top, r.right, r.bottom)
      .U32(48)
      .Append(fields.Data())
      .Append(RegionOf(r).Data());
}

/// The same as a Windows metafile has it, with a scan.
Bytes StoredRegion(const RectangleL& r) {
  return Bytes()
      .U16(0)
      .U16(6)
      .U32(0)
      .I16(30)
      .I16(1)
      .I16(2)
      .I16(r.left)
      .I16(r.top)
      .I16(r.right)
      .I16(r.bottom)
      .U16(2)
      .I16(r.top)
      .I16(r.bottom)
      .I16(r.left)
      .I16(r.right)
      .U16(2);
}

constexpr RectangleL kBox = {20, 30, 60, 70};

// Words of a box, and of marks that show the state.
void Box(WindowsMetafile& w) {
  w.Record(0x041B, {70, 60, 30, 20});
}
void Box(Metafile& e) {
  e.Rectangle(kBox);
}

Metafile& Anisotropic(Metafile& e) {
  return e.SetMapMode(8).SetWindowExt(100, 100).SetViewportExt(100, 100);
}

std::vector<FunctionRow> Shapes() {
  return {
      {0x0213, "LineTo",
       [](auto& w) {
         w.Record(0x0214, {10, 5}).Record(0x0213, {40, 30});
       },
       [](auto& e) { e.MoveTo(5, 10).LineTo(30, 40); }},
      {0x0214, "MoveTo",
       [](auto& w) {
         w.Record(0x0214, {3, 2}).Record(0x0213, {9, 9});
       },
       [](auto& e) { e.MoveTo(2, 3).LineTo(9, 9); }},
      {0x041B, "Rectangle", [](auto& w) { Box(w); }, [](auto& e) { Box(e); }},
      {0x0418, "Ellipse",
       [](auto& w) {
         w.Record(0x0418, {70, 60, 30, 20});
       },
       [](auto& e) { e.Ellipse(kBox); }},
      {0x061C, "RoundRect",
       [](auto& w) {
         w.Record(0x061C, {8, 12, 70, 60, 30, 20});
       },
       [](auto& e) { e.RoundRectangle(kBox, 12, 8); }},
      {0x0817, "Arc",
       [](auto& w) {
         w.Record(0x0817, {30, 40, 50, 60, 70, 60, 30, 20});
       },
       [](auto& e) {
         e.Arc(kBox, {60, 50}, {40, 30});
       }},
      {0x081A, "Pie",
       [](auto& w) {
         w.Record(0x081A, {30, 40, 50, 60, 70, 60, 30, 20});
       },
       [](auto& e) {
         e.Pie(kBox, {60, 50}, {40, 30});
       }},
      {0x0830, "Chord",
       [](auto& w) {
         w.Record(0x0830, {30, 40, 50, 60, 70, 60, 30, 20});
       },
       [](auto& e) {
         e.Chord(kBox, {60, 50}, {40, 30});
       }},
      {0x041F, "SetPixel", [](auto& w) { w.Record(0x041F, Bytes().U32(0xFF).I16(8).I16(7)); },
       [](auto& e) { e.Record(kSetPixel, Bytes().PointL(7, 8).U32(0xFF)); }},
      {0x0324, "Polygon",
       [](auto& w) {
         w.Record(0x0324, {3, 1, 2, 30, 4, 5, 60});
       },
       [](auto& e) {
         e.Polygon({{1, 2}, {30, 4}, {5, 60}});
       }},
      {0x0325, "Polyline",
       [](auto& w) {
         w.Record(0x0325, {3, 1, 2, 30, 4, 5, 60});
       },
       [](auto& e) {
         e.Polyline({{1, 2}, {30, 4}, {5, 60}});
       }},
      {0x0538, "PolyPolygon",
       [](auto& w) {
         w.Record(0x0538, {2, 3, 3, 0, 0, 50, 0, 50, 50, 10, 5, 40, 5, 40, 30});
       },
       [](auto& e) {
         e.PolyPolygon({{{0, 0}, {50, 0}, {50, 50}}, {{10, 5}, {40, 5}, {40, 30}}});
       }},
      {0x061D, "PatBlt",
       [](auto& w) { w.Record(0x061D, Bytes().U32(kPatCopy).I16(40).I16(30).I16(20).I16(10)); },
       [](auto& e) {
         e.BitBlt({10, 20}, {30, 40}, kPatCopy);
       }},
  };
}

std::vector<FunctionRow> Regions() {
  const auto create = [](auto& w) -> auto& {
    return w.Record(0x06FF, StoredRegion(kBox));
  };
  const auto brush = [](auto& w) -> auto& {
    return w.Record(0x02FC, Bytes().U16(0).U32(0xFF).U16(0));
  };
  return {
      {0x0228, "FillRegion",
       [=](auto& w) {
         brush(create(w)).Record(0x0228, {0, 1});
       },
       [](auto& e) {
         e.CreateBrush(1, 0xFF).Record(kFillRegion, PaintedRegion(kBox, Bytes().U32(1)));
       }},
      {0x0429, "FrameRegion",
       [=](auto& w) {
         brush(create(w)).Record(0x0429, {0, 1, 3, 2});
       },
       [](auto& e) {
         e.CreateBrush(1, 0xFF).Record(kFrameRegion,
                                       PaintedRegion(kBox, Bytes().U32(1).I32(2).I32(3)));
       }},
      {0x012A, "InvertRegion", [=](auto& w) { create(w).Record(0x012A, {0}); },
       [](auto& e) { e.Record(kInvertRegion, PaintedRegion(kBox)); }},
      {0x012B, "PaintRegion", [=](auto& w) { create(w).Record(0x012B, {0}); },
       [](auto& e) { e.Record(kPaintRegion, PaintedRegion(kBox)); }},
      {0x06FF, "CreateRegionThatIsSelected",
       [=](auto& w) {
         create(w).Record(0x012D, {0});
         w.Record(0x0418, {90, 90, 0, 0});
       },
       [](auto& e) {
         e.Record(kSelectClipRegion, Bytes().U32(48).U32(5).Append(RegionOf(kBox).Data()));
         e.Ellipse({0, 0, 90, 90});
       }},
      {0x012C, "SelectClipRegion",
       [=](auto& w) {
         brush(w);
         create(w).Record(0x012C, {1});
         w.Record(0x0418, {90, 90, 0, 0});
       },
       [](auto& e) {
         e.Record(kSelectClipRegion, Bytes().U32(48).U32(5).Append(RegionOf(kBox).Data()));
         e.Ellipse({0, 0, 90, 90});
       }},
      {0x0415, "ExcludeClipRect",
       [](auto& w) {
         w.Record(0x0415, {70, 60, 30, 20}).Record(0x0418, {90, 90, 0, 0});
       },
       [](auto& e) {
         e.Record(kExcludeClip, Bytes().Rectangle(20, 30, 60, 70)).Ellipse({0, 0, 90, 90});
       }},
      {0x0416, "IntersectClipRect",
       [](auto& w) {
         w.Record(0x0416, {70, 60, 30, 20}).Record(0x0418, {90, 90, 0, 0});
       },
       [](auto& e) {
         e.Record(kIntersectClip, Bytes().Rectangle(20, 30, 60, 70)).Ellipse({0, 0, 90, 90});
       }},
      {0x0220, "OffsetClipRgn",
       [](auto& w) {
         w.Record(0x0416, {70, 60, 30, 20}).Record(0x0220, {5, 7}).Record(0x0418, {90, 90, 0, 0});
       },
       [](auto& e) {
         e.Record(kIntersectClip, Bytes().Rectangle(20, 30, 60, 70));
         e.Record(kOffsetClip, Bytes().PointL(7, 5)).Ellipse({0, 0, 90, 90});
       }},
  };
}

std::vector<FunctionRow> Objects() {
  return {
      {0x02FA, "CreatePenIndirect",
       [](auto& w) {
         w.Record(0x02FA, Bytes().U16(0).I16(5).I16(0).U32(0xFF00)).Record(0x012D, {0});
         Box(w);
       },
       [](auto& e) { e.CreatePen(1, 5, 0xFF00).SelectObject(1).Rectangle(kBox); }},
      {0x02FC, "CreateBrushIndirect",
       [](auto& w) {
         w.Record(0x02FC, Bytes().U16(0).U32(0xFF00).U16(0)).Record(0x012D, {0});
         Box(w);
       },
       [](auto& e) { e.CreateBrush(1, 0xFF00).SelectObject(1).Rectangle(kBox); }},
      {0x012D, "SelectObject",
       [](auto& w) {
         w.Record(0x02FC, Bytes().U16(0).U32(0xFF00).U16(0));
         w.Record(0x02FC, Bytes().U16(0).U32(0xFF).U16(0));
         w.Record(0x012D, {1}).Record(0x012D, {0});
         Box(w);
       },
       [](auto& e) { e.CreateBrush(1, 0xFF00).SelectObject(1).Rectangle(kBox); }},
      {0x01F0, "DeleteObjectWhichStaysSelected",
       [](auto& w) {
         w.Record(0x02FC, Bytes().U16(0).U32(0xFF00).U16(0));
         w.Record(0x012D, {0}).Record(0x01F0, {0});
         Box(w);
       },
       [](auto& e) { e.CreateBrush(1, 0xFF00).SelectObject(1).Rectangle(kBox); }},
      {0x00F8, "CreateBrushTakesAnIndex",
       [](auto& w) {
         w.Record(0x00F8, {0}).Record(0x02FC, Bytes().U16(0).U32(0xFF00).U16(0));
         w.Record(0x012D, {1});
         Box(w);
       },
       [](auto& e) { e.CreateBrush(1, 0xFF00).SelectObject(1).Rectangle(kBox); }},
      {0x02FD, "CreateBitmapIndirectTakesAnIndex",
       [](auto& w) {
         w.Record(0x02FD, {0}).Record(0x02FC, Bytes().U16(0).U32(0xFF00).U16(0));
         w.Record(0x012D, {1});
         Box(w);
       },
       [](auto& e) { e.CreateBrush(1, 0xFF00).SelectObject(1).Rectangle(kBox); }},
      {0x06FE, "CreateBitmapTakesAnIndex",
       [](auto& w) {
         w.Record(0x06FE, {0}).Record(0x02FC, Bytes().U16(0).U32(0xFF00).U16(0));
         w.Record(0x012D, {1});
         Box(w);
       },
       [](auto& e) { e.CreateBrush(1, 0xFF00).SelectObject(1).Rectangle(kBox); }},
  };
}

std::vector<FunctionRow> Mappings() {
  return {
      {0x0103, "SetMapMode",
       [](auto& w) {
         w.Record(0x0103, {1});
         Box(w);
       },
       [](auto& e) { e.SetMapMode(1).Rectangle(kBox); }},
      {0x020B, "SetWindowOrg",
       [](auto& w) {
         w.Record(0x020B, {7, 5});
         Box(w);
       },
       [](auto& e) { Anisotropic(e).SetWindowOrg(5, 7).Rectangle(kBox); }},
      {0x020C, "SetWindowExt",
       [](auto& w) {
         w.Record(0x020C, {50, 200});
         Box(w);
       },
       [](auto& e) { Anisotropic(e).SetWindowExt(200, 50).Rectangle(kBox); }},
      {0x020D, "SetViewportOrg",
       [](auto& w) {
         w.Record(0x020D, {7, 5});
         Box(w);
       },
       [](auto& e) { Anisotropic(e).SetViewportOrg(5, 7).Rectangle(kBox); }},
      {0x020E, "SetViewportExtWhoseFirstIsThePage",
       [](auto& w) {
         w.Record(0x020E, {400, 200}).Record(0x020E, {200, 100});
         Box(w);
       },
       [](auto& e) { Anisotropic(e).SetViewportExt(50, 50).Rectangle(kBox); }},
      {0x020F, "OffsetWindowOrg",
       [](auto& w) {
         w.Record(0x020B, {7, 5}).Record(0x020F, {2, 1});
         Box(w);
       },
       [](auto& e) { Anisotropic(e).SetWindowOrg(6, 9).Rectangle(kBox); }},
      {0x0211, "OffsetViewportOrg",
       [](auto& w) {
         w.Record(0x020D, {7, 5}).Record(0x0211, {2, 1});
         Box(w);
       },
       [](auto& e) { Anisotropic(e).SetViewportOrg(6, 9).Rectangle(kBox); }},
      {0x0410, "ScaleWindowExt",
       [](auto& w) {
         w.Record(0x0410, {1, 2, 1, 4});
         Box(w);
       },
       [](auto& e) {
         Anisotropic(e).Record(kScaleWindow, Bytes().I32(4).I32(1).I32(2).I32(1)).Rectangle(kBox);
       }},
      {0x0412, "ScaleViewportExt",
       [](auto& w) {
         w.Record(0x0412, {2, 1, 4, 1});
         Box(w);
       },
       [](auto& e) {
         Anisotropic(e).Record(kScaleViewport, Bytes().I32(1).I32(4).I32(1).I32(2)).Rectangle(kBox);
       }},
      {0x001E, "SaveDC",
       [](auto& w) {
         w.Record(0x001E).Record(0x020B, {7, 5}).Record(0x0127, {-1});
         Box(w);
       },
       [](auto& e) { e.Rectangle(kBox); }},
      {0x0127, "RestoreDCToALevel",
       [](auto& w) {
         w.Record(0x001E).Record(0x020B, {7, 5}).Record(0x001E).Record(0x0127, {1});
         Box(w);
       },
       [](auto& e) { e.Rectangle(kBox); }},
      {0x0149, "SetLayout",
       [](auto& w) {
         w.Record(0x0149, {1, 0});
         Box(w);
       },
       [](auto& e) { e.Record(kSetLayout, Bytes().U32(1)).Rectangle(kBox); }},
  };
}

std::vector<FunctionRow> Attributes() {
  const auto star = [](auto& w) { w.Record(0x0324, {5, 50, 0, 80, 90, 0, 35, 99, 35, 20, 90}); };
  const auto emfStar = [](auto& e) -> auto& {
    return e.Polygon({{50, 0}, {80, 90}, {0, 35}, {99, 35}, {20, 90}});
  };
  return {
      {0x0104, "SetROP2",
       [](auto& w) {
         w.Record(0x0104, {6});
         Box(w);
       },
       [](auto& e) { e.Record(kSetRop2, Bytes().U32(6)).Rectangle(kBox); }},
      {0x0106, "SetPolyFillMode",
       [=](auto& w) {
         w.Record(0x0106, {2});
         star(w);
       },
       [=](auto& e) { emfStar(e.Record(kSetPolyFillMode, Bytes().U32(2))); }},
      {0x0102, "SetBkMode", [](auto& w) { WriteOnGround(w.Record(0x0102, {1})); },
       [](auto& e) { WriteOnGround(e.SetBkMode(kTransparent)); }},
      {0x0201, "SetBkColor", [](auto& w) { WriteOnGround(w.Record(0x0201, Bytes().U32(0xFF00))); },
       [](auto& e) { WriteOnGround(e.SetBkColor(0xFF00)); }},
      {0x0209, "SetTextColor",
       [](auto& w) { WriteOnGround(w.Record(0x0209, Bytes().U32(0xFF00))); },
       [](auto& e) { WriteOnGround(e.SetTextColor(0xFF00)); }},
      {0x012E, "SetTextAlign", [](auto& w) { WriteOnGround(w.Record(0x012E, {6})); },
       [](auto& e) { WriteOnGround(e.SetTextAlign(kTextCenter)); }},
      {0x020A, "SetTextJustification",
       [](auto& w) {
         WriteOnGround(w.Record(0x020A, {1, 9}));
       },
       [](auto& e) { WriteOnGround(e.Record(kSetTextJustification, Bytes().I32(9).I32(1))); }},
      {0x02FB, "CreateFontIndirect", [](auto& w) { WriteOnGround(w); },
       [](auto& e) { WriteOnGround(e); }},
      {0x0521, "TextOut",
       [](auto& w) {
         SelectPlainFont(w).Record(0x0521, Bytes().U16(3).Each({'a', ' ', 'b', 0}).I16(40).I16(30));
       },
       [](auto& e) {
         SelectPlainFont(e).TextOutA({30, 40}, "a b");
       }},
      {0x0A32, "ExtTextOutWithAdvances",
       [](auto& w) {
         SelectPlainFont(w).Record(
             0x0A32,
             Bytes().I16(40).I16(30).U16(3).U16(0).Each({'a', ' ', 'b', 0}).I16(9).I16(20).I16(9));
       },
       [](auto& e) {
         SelectPlainFont(e).TextOutA({30, 40}, "a b", {9, 20, 9});
       }},
  };
}

class AFunction : public testing::TestWithParam<FunctionRow> {};

TEST_P(AFunction, LeavesTheMarksOfTheSameCallInAnEnhancedMetafile) {
  WindowsMetafile windows = OnPlainPage();
  GetParam().windows(windows);
  Metafile enhanced;
  GetParam().enhanced(enhanced);
  const PlayedMetafile played = Played(windows.Build());
  EXPECT_NE(played.trace, "");
  EXPECT_EQ(played.trace, Played(enhanced.Build()).trace);
}

std::vector<FunctionRow> AllRows() {
  std::vector<FunctionRow> rows;
  for (const auto& part : {Shapes(), Regions(), Objects(), Mappings(), Attributes()})
    rows.insert(rows.end(), part.begin(), part.end());
  return rows;
}

// Bitmaps, palettes and patterns.

/// Two pixels by two, in blue.
Bytes BlueBitmap() {
  const Bytes row = Bytes().Each({255, 0, 0, 255, 0, 0, 0, 0});
  return Bytes().BitmapHeader({.width = 2, .height = 2}).Append(row.Data()).Append(row.Data());
}

/// Eight pixels by two made for a device: every other one is set.
Bytes DeviceBitmap() {
  return Bytes().I16(0).I16(8).I16(2).I16(2).U8(1).U8(1).Each({0xAA, 0, 0xAA, 0});
}

struct MarkRow {
  std::uint16_t function;
  std::string name;
  std::function<void(WindowsMetafile&)> make;
  std::string mark;  // part of the trace
};

void PrintTo(const MarkRow& row, std::ostream* out) {
  *out << row.name;
}

void FillWithFirst(WindowsMetafile& w) {
  w.Record(0x012D, {0});
  Box(w);
}

std::vector<MarkRow> Marks() {
  const Bytes copy = Bytes().U32(kSrcCopy);
  const auto blit = [=](const Bytes& between, const Bytes& bitmap) {
    return Bytes(copy)
        .Append(between.Data())
        .I16(0)
        .I16(0)
        .I16(20)
        .I16(20)
        .I16(10)
        .I16(10)
        .Append(bitmap.Data());
  };
  const Bytes source = Bytes().I16(2).I16(2);
  const Bytes deviceSource = Bytes().I16(2).I16(8);
  const Bytes brush =
      Bytes().I16(0).I16(8).I16(2).I16(2).U8(1).U8(1).U32(0).Zeros(18).Each({0xAA, 0, 0xAA, 0});
  const Bytes palette = Bytes().U16(0x300).U16(2).Each({255, 0, 0, 0, 0, 255, 0, 0});
  const auto penOfEntry = [](auto& w) {  // of colour 1 of the palette
    w.Record(0x02FA, Bytes().U16(0).I16(9).I16(0).U32(0x01000001)).Record(0x012D, {1});
    w.Record(0x0213, {50, 50});
  };
  return {
      {0x0922, "BitBlt", [=](auto& w) { w.Record(0x0922, blit({}, DeviceBitmap())); },
       "image 8 2 "},
      {0x0B23, "StretchBlt", [=](auto& w) { w.Record(0x0B23, blit(deviceSource, DeviceBitmap())); },
       "image 8 2 "},
      {0x0940, "DibBitBlt", [=](auto& w) { w.Record(0x0940, blit({}, BlueBitmap())); },
       "image 2 2 rgb"},
      {0x0B41, "DibStretchBlt", [=](auto& w) { w.Record(0x0B41, blit(source, BlueBitmap())); },
       "image 2 2 rgb"},
      {0x0F43, "StretchDib",
       [=](auto& w) { w.Record(0x0F43, blit(Bytes().U16(0).Append(source.Data()), BlueBitmap())); },
       "image 2 2 rgb"},
      {0x0D33, "SetDibToDev",
       [=](auto& w) {
         w.Record(0x0D33,
                  Bytes().U16(0).U16(2).U16(0).I16(0).I16(0).I16(2).I16(2).I16(10).I16(10).Append(
                      BlueBitmap().Data()));
       },
       "image 2 2 rgb"},
      {0x0107, "SetStretchBltMode",
       [=](auto& w) { w.Record(0x0107, {4}).Record(0x0B41, blit(source, BlueBitmap())); },
       "image 2 2 rgb smooth"},
      {0x0142, "DibCreatePatternBrush",
       [](auto& w) {
         w.Record(0x0142, Bytes().U16(5).U16(0).Append(BlueBitmap().Data()));
         FillWithFirst(w);
       },
       "pattern"},
      {0x01F9, "CreatePatternBrush",
       [=](auto& w) {
         w.Record(0x01F9, brush);
         FillWithFirst(w);
       },
       "pattern"},
      {0x00F7, "CreatePalette",
       [=](auto& w) {
         w.Record(0x00F7, palette).Record(0x0234, {0});
         penOfEntry(w);
       },
       "stroke-color 0 1 0"},
      {0x0234, "SelectPalette",
       [=](auto& w) {
         w.Record(0x00F7, palette);
         w.Record(0x0234, {0});
         penOfEntry(w);
       },
       "stroke-color 0 1 0"},
      {0x0037, "SetPalEntries",
       [=](auto& w) {
         w.Record(0x00F7, palette).Record(0x0234, {0});
         w.Record(0x0037, Bytes().U16(1).U16(1).Each({0, 0, 255, 0}));
         penOfEntry(w);
       },
       "stroke-color 0 0 1"},
      {0x0436, "AnimatePalette",
       [=](auto& w) {
         w.Record(0x00F7, palette).Record(0x0234, {0});
         w.Record(0x0436, Bytes().U16(1).U16(1).Each({0, 0, 255, 0}));
         penOfEntry(w);
       },
       "stroke-color 0 0 1"},
      {0x0139, "ResizePalette",
       [=](auto& w) {
         w.Record(0x00F7, palette).Record(0x0234, {0}).Record(0x0139, {1});
         penOfEntry(w);
       },
       "stroke-color 1 0 0"},
      {0x0108, "SetTextCharExtra",
       [](auto& w) {
         w.Record(0x0108, {50});
         WriteOnGround(w);
       },
       "at 61 0\n"},
  };
}

class AMark : public testing::TestWithParam<MarkRow> {};

TEST_P(AMark, IsLeftOnThePage) {
  WindowsMetafile windows = OnPlainPage();
  GetParam().make(windows);
  const PlayedMetafile played = Played(windows.Build());
  EXPECT_NE(played.trace.find(GetParam().mark), std::string::npos) << played.trace;
  EXPECT_EQ(played.report, "");
}

INSTANTIATE_TEST_SUITE_P(, AMark, testing::ValuesIn(Marks()),
                         [](const auto& row) { return row.param.name; });

// Functions that leave nothing.

struct SilentRow {
  std::uint16_t function;
  std::string report;  // empty where nothing is missing
};

const std::vector<SilentRow> kSilent = {
    {0x0000, ""},  // the end
    {0x0035, ""},
    {0x004F, ""},
    {0x0050, ""},
    {0x0052, ""},
    {0x005E, ""},
    {0x0105, ""},
    {0x014C, ""},
    {0x014D, ""},
    {0x0231, ""},
    {0x0626, ""},
    {0x0419, "left out META_FLOODFILL 1: a flood fill needs the pixels of the page\n"},
    {0x0548, "left out META_EXTFLOODFILL 1: a flood fill needs the pixels of the page\n"},
    {0x062F, "left out META_DRAWTEXT 1: its text has no known layout\n"},
};

TEST(SilentFunctions, LeaveNothingAndSayWhatIsMissing) {
  for (const SilentRow& row : kSilent) {
    const PlayedMetafile played =
        Played(OnPlainPage().Record(row.function, Bytes().Zeros(12)).Build());
    EXPECT_EQ(played.trace, Played(OnPlainPage().Build()).trace) << row.function;
    EXPECT_EQ(played.report, row.report) << row.function;
  }
}

TEST(UnknownFunctions, AreReported) {
  EXPECT_EQ(Played(OnPlainPage().Record(0x0777).Build()).report,
            "left out 1911 1: it is of an unknown kind\n");
}

TEST(EveryFunction, HasARow) {
  std::set<std::uint16_t> tested;
  for (const FunctionRow& row : AllRows())
    tested.insert(row.function);
  for (const MarkRow& row : Marks())
    tested.insert(row.function);
  for (const SilentRow& row : kSilent)
    tested.insert(row.function);
  EXPECT_EQ(tested.size(), 80U);
}

INSTANTIATE_TEST_SUITE_P(, AFunction, testing::ValuesIn(AllRows()),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace kelvane::test

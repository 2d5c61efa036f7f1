// A Windows metafile of each function, beside the enhanced one whose record is the same call: both
// leave the same marks. A unit of either is a point of the page.

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "players/traced_metafile.h"
#include "players/wmf/wmf_page.h"
#include "players/wmf/wmf_region_bytes.h"
#include "players/wmf/wmf_tested_functions.h"
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

INSTANTIATE_TEST_SUITE_P(, AFunction, testing::ValuesIn(AllRows()),
                         [](const auto& row) { return row.param.name; });

}  // namespace

std::vector<std::uint16_t> FunctionsWithACall() {
  std::vector<std::uint16_t> functions;
  for (const FunctionRow& row : AllRows())
    functions.push_back(row.function);
  return functions;
}

}  // namespace kelvane::test

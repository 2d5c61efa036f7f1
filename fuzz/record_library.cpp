#include "metafile_mutator.h"
#include "support/metafile.h"

namespace kelvane::fuzz {
namespace {

using test::Bytes;
using test::Metafile;
using enum test::EmrType;

// Types that the builder has no verb for.
constexpr std::uint32_t kEmrPolyTextOutA = 96;
constexpr std::uint32_t kEmrPolyTextOutW = 97;
constexpr std::uint32_t kEmrSmallTextOut = 108;
constexpr std::uint32_t kEmrSetTextJustification = 120;

// Object indexes 1 to 4 are what the records below create and select.

void AddFigures(Metafile& metafile) {
  for (const bool wide : {false, true}) {
    metafile.Polyline({{1, 2}, {30, 40}, {-5, 6}}, wide).Polygon({{1, 2}, {90, 4}, {5, 60}}, wide);
    metafile.Polybezier({{0, 0}, {10, 20}, {30, 40}, {50, 60}}, wide).PolylineTo({{7, 8}}, wide);
    metafile.PolybezierTo({{1, 1}, {2, 2}, {3, 3}}, wide);
    metafile.PolyPolyline({{{1, 2}, {3, 4}}, {{5, 6}, {7, 8}, {9, 9}}}, wide);
    metafile.PolyPolygon({{{1, 2}, {3, 4}, {5, 0}}, {{50, 60}, {70, 80}, {90, 90}}}, wide);
  }
  metafile.MoveTo(10, 20).LineTo(30, 40).Rectangle({1, 2, 30, 40}).Ellipse({5, 5, 50, 60});
  metafile.RoundRectangle({9, 9, 80, 80}, 10, 20).Arc({0, 0, 9, 9}, {0, 5}, {9, 5});
  metafile.ArcTo({0, 0, 9, 9}, {0, 5}, {9, 5}).Chord({0, 0, 9, 9}, {0, 5}, {9, 5});
  metafile.Pie({0, 0, 9, 9}, {0, 5}, {9, 5}).AngleArc({50, 50}, 20, 0, 270);
}

void AddStates(Metafile& metafile) {
  metafile.SetMapMode(test::kMapAnisotropic)
      .SetMapMode(1)
      .SetWindowOrg(-10, 10)
      .SetWindowExt(1000, 500);
  metafile.SetViewportOrg(1, 2).SetViewportExt(100, 100).SaveDC().RestoreDC();
  metafile.SetWorldTransform({0.5F, 0.25F, -0.25F, 0.5F, 3, 4});
  for (const int mode : {1, 2, 3, 4}) {
    metafile.ModifyWorldTransform({1, 0, 0, -2, 5, 6}, mode);
  }
  metafile.SetArcDirection(test::kArcClockwise)
      .BeginPath()
      .EndPath()
      .CloseFigure()
      .FillPath()
      .StrokePath();
  metafile.StrokeAndFillPath().SelectClipPath(test::kRegionAnd).SelectClipPath(test::kRegionCopy);
  metafile.SetTextAlign(test::kTextBaseline).SetTextAlign(test::kTextUpdateCP).SetTextColor(0xFF);
  metafile.SetBkColor(0xFF00).SetBkMode(test::kOpaque).SetBkMode(test::kTransparent);
  metafile.Record(EMR_INTERSECTCLIPRECT, Bytes().Rectangle(10, 10, 60, 60));
  metafile.Record(EMR_SCALEVIEWPORTEXTEX, Bytes().I32(1).I32(2).I32(3).I32(0));
  metafile.Record(EMR_SCALEWINDOWEXTEX, Bytes().I32(1).I32(2).I32(-1).I32(4));
  metafile.Record(EMR_SETMITERLIMIT, Bytes().F32(4)).Record(EMR_SETLAYOUT, Bytes().U32(1));
  metafile.Record(EMR_SETPOLYFILLMODE, Bytes().U32(1)).Record(EMR_SETARCDIRECTION, Bytes().U32(1));
}

void AddObjects(Metafile& metafile) {
  metafile.CreatePen(1, 3, 0xFF).CreateBrush(2, 0xFF00);
  metafile.CreateFont(3, {}).CreateFont(
      4, {.face = u"Arial", .height = 20, .width = 700, .escapement = 450, .italic = 1});
  for (const std::uint32_t index : {1U, 2U, 3U, 4U, test::kStockNullBrush, test::kStockNullPen})
    metafile.SelectObject(index);
  metafile.DeleteObject(1).DeleteObject(3);
  metafile.Record(EMR_EXTCREATEPEN,
                  Bytes().U32(1).Zeros(16).U32(1).U32(2).U32(0).U32(0xFF).U32(0).U32(1).U32(5));
  metafile.Record(EMR_CREATEDIBPATTERNBRUSHPT,
                  Bytes().U32(2).U32(0).U32(32).U32(40).U32(72).U32(4).BitmapHeader({}).Zeros(4));
}

void AddBitmaps(Metafile& metafile) {
  for (const std::uint32_t bits : {1U, 4U, 8U, 16U, 24U, 32U}) {
    metafile.StretchDibits(
        {0, 0, 50, 50},
        Bytes()
            .BitmapHeader(
                {.width = 4, .height = 2, .bitCount = bits, .colorsUsed = bits < 16 ? 2U : 0U})
            .Zeros(bits < 16 ? 8 : 0)
            .Zeros(std::size_t{bits} * 2));
  }
  metafile.StretchDibits({0, 0, 50, 50}, Bytes().BitmapHeader({.compression = 3}).Zeros(16),
                         test::kSrcCopy, -9);
  metafile.BitBlt({1, 2}, {3, 4}).BitBlt({1, 2}, {3, 4}, test::kSrcCopy, Bytes().Zeros(4));
}

void AddText(Metafile& metafile) {
  metafile.TextOut({10, 20}, u"Text", {5, 6, 7, 8}).TextOut({10, 20}, u"a\u0301\u05D0\u4E2D\u0634");
  metafile.TextOut({0, 0}, u"\xD83D\xDE00\xDC00\xD800 x", {1}).TextOutA({30, 40}, "ab\1c", {9, 9});
  for (const std::uint32_t type : {kEmrPolyTextOutA, kEmrPolyTextOutW}) {
    Bytes texts = Bytes().Zeros(16).U32(1).F32(1).F32(1).U32(1).PointL(10, 20).U32(2).U32(80);
    metafile.Record(type, texts.U32(6).Rectangle(1, 2, 30, 40).U32(84).Utf16(u"ab").I32(5).I32(6));
  }
  const Bytes small = Bytes().PointL(10, 20).U32(2);
  metafile.Record(kEmrSmallTextOut, Bytes(small).U32(0x300).U32(2).F32(1).F32(1).Each({65, 66}));
  metafile.Record(kEmrSmallTextOut, Bytes(small).U32(2).U32(1).F32(1).F32(1).Zeros(16).U32(65));
  metafile.Record(kEmrSetTextJustification, Bytes().I32(10).I32(2));
  metafile.Record(EMR_GDICOMMENT, Bytes().U32(4).U32(0x2B464D45));
}

}  // namespace

const std::vector<ByteVector>& RecordLibrary() {
  static const std::vector<ByteVector> kLibrary = [] {
    Metafile metafile;
    AddFigures(metafile);
    AddStates(metafile);
    AddObjects(metafile);
    AddBitmaps(metafile);
    AddText(metafile);
    return TakeApart(metafile.BuildWithoutEnd()).records;
  }();
  return kLibrary;
}

}  // namespace kelvane::fuzz

#include "record_samples.h"

namespace kelvane::test {
namespace {

Samples Lines() {
  const Bytes point = Bytes().PointL(5, -6);
  const Bytes poly = Bounded().U32(2);
  const Bytes polyPoly = Bounded().U32(2).U32(3).U32(1).U32(2);
  const Bytes pointsL = Bytes().PointL(5, 6).PointL(-7, 8);
  const Bytes points = Bytes().Point(5, 6).Point(-7, 8);
  const std::string two = kBounded + " aPoints=2:(5,6),(-7,8)";
  const std::string three = "=2:1,2 aPoints=3:(9,9),(5,6),(-7,8)";
  const Bytes types = Bytes().Each({6, 3, 0, 0});
  const std::string typed = two + " abTypes=2:PT_MOVETO,PT_LINETO|PT_CLOSEFIGURE";
  return {
      {{EMR_MOVETOEX}, point, " Offset=(5,-6)"},
      {{EMR_LINETO}, point, " Point=(5,-6)"},
      {{EMR_POLYBEZIER, EMR_POLYGON, EMR_POLYLINE, EMR_POLYBEZIERTO, EMR_POLYLINETO},
       Bytes(poly).Append(pointsL.Data()),
       two},
      {{EMR_POLYBEZIER16, EMR_POLYGON16, EMR_POLYLINE16, EMR_POLYBEZIERTO16, EMR_POLYLINETO16},
       Bytes(poly).Append(points.Data()),
       two},
      {{EMR_POLYPOLYLINE},
       Bytes(polyPoly).PointL(9, 9).Append(pointsL.Data()),
       kBounded + " PolylinePointCount" + three},
      {{EMR_POLYPOLYGON},
       Bytes(polyPoly).PointL(9, 9).Append(pointsL.Data()),
       kBounded + " PolygonPointCount" + three},
      {{EMR_POLYPOLYLINE16},
       Bytes(polyPoly).Point(9, 9).Append(points.Data()),
       kBounded + " PolylinePointCount" + three},
      {{EMR_POLYPOLYGON16},
       Bytes(polyPoly).Point(9, 9).Append(points.Data()),
       kBounded + " PolygonPointCount" + three},
      {{EMR_POLYDRAW}, Bytes(poly).Append(pointsL.Data()).Append(types.Data()), typed},
      {{EMR_POLYDRAW16}, Bytes(poly).Append(points.Data()).Append(types.Data()), typed},
  };
}

Samples Shapes() {
  const Bytes box = Bytes().Rectangle(-1, 2, 30, 40);
  const std::string boxed = " Box=(-1,2,30,40)";
  const Bytes gradient = Bounded().U32(2).U32(1);
  const Bytes vertices = Bytes().PointL(1, 2).U16(0xFF00).U16(1).U16(2).U16(3).Zeros(16);
  const std::string vertexObjects = " VertexObjects=2:((1,2),65280,1,2,3),((0,0),0,0,0,0)";
  return {
      {{EMR_ELLIPSE, EMR_RECTANGLE}, box, boxed},
      {{EMR_ROUNDRECT}, Bytes(box).PointL(7, 8), boxed + " Corner=(7,8)"},
      {{EMR_ARC, EMR_CHORD, EMR_PIE, EMR_ARCTO},
       Bytes(box).PointL(5, 6).PointL(7, 8),
       boxed + " Start=(5,6) End=(7,8)"},
      {{EMR_ANGLEARC},
       Bytes().PointL(5, 6).U32(7).F32(90.5).F32(-45),
       " Center=(5,6) Radius=7 StartAngle=90.5 SweepAngle=-45"},
      {{EMR_SETPIXELV}, Bytes().PointL(5, 6).U32(0x0000FF), " Pixel=(5,6) Color=#ff0000"},
      {{EMR_EXTFLOODFILL},
       Bytes().PointL(5, 6).U32(0xFF0000).U32(1),
       " Start=(5,6) Color=#0000ff FloodFillMode=FLOODFILLSURFACE"},
      {{EMR_GRADIENTFILL},
       Bytes(gradient).U32(1).Append(vertices.Data()).U32(0).U32(1),
       kBounded + " ulMode=GRADIENT_FILL_RECT_V" + vertexObjects + " VertexIndexes=1:(0,1)"},
      {{EMR_GRADIENTFILL},
       Bytes(gradient).U32(2).Append(vertices.Data()).U32(0).U32(1).U32(7),
       kBounded + " ulMode=GRADIENT_FILL_TRIANGLE" + vertexObjects + " VertexIndexes=1:(0,1,7)"},
  };
}

Samples PathsAndAreas() {
  const Bytes region =
      Bytes().U32(32).U32(1).U32(1).U32(16).Rectangle(1, 1, 9, 9).Rectangle(2, 2, 8, 8);
  const std::string regioned = " RegionBounds=(1,1,9,9) RgnData=1:(2,2,8,8)";
  return {
      {{EMR_BEGINPATH, EMR_ENDPATH, EMR_CLOSEFIGURE, EMR_ABORTPATH, EMR_FLATTENPATH, EMR_WIDENPATH,
        EMR_SETMETARGN},
       Bytes(),
       ""},
      {{EMR_FILLPATH, EMR_STROKEANDFILLPATH, EMR_STROKEPATH}, Bounded(), kBounded},
      {{EMR_SELECTCLIPPATH}, Bytes().U32(4), " RegionMode=RGN_DIFF"},
      {{EMR_OFFSETCLIPRGN}, Bytes().PointL(5, -6), " Offset=(5,-6)"},
      {{EMR_EXCLUDECLIPRECT, EMR_INTERSECTCLIPRECT}, Bounded(), " Clip=(1,2,3,4)"},
      {{EMR_EXTSELECTCLIPRGN}, Bytes().U32(0).U32(5), " RegionMode=RGN_COPY"},
      {{EMR_EXTSELECTCLIPRGN},
       Bytes().U32(48).U32(1).Append(region.Data()),
       " RegionMode=RGN_AND" + regioned},
      {{EMR_FILLRGN},
       Bounded().U32(48).U32(3).Append(region.Data()),
       kBounded + " ihBrush=3" + regioned},
      {{EMR_FRAMERGN},
       Bounded().U32(48).U32(3).I32(5).I32(6).Append(region.Data()),
       kBounded + " ihBrush=3 Width=5 Height=6" + regioned},
      {{EMR_INVERTRGN, EMR_PAINTRGN}, Bounded().U32(48).Append(region.Data()), kBounded + regioned},
  };
}

Samples Bitmaps() {
  const Bytes destination = Bounded().PointL(5, 6).PointL(7, 8);
  const std::string placed = kBounded + " Dest=(5,6) cDest=(7,8)";
  const Bytes source = Bytes().PointL(9, 10).Append(Transform().Data()).U32(0xFF).U32(1).Zeros(16);
  const std::string sourced =
      " XformSrc=" + kTransform + " BkColorSrc=#ff0000 UsageSrc=DIB_PAL_COLORS";
  const Bytes stretched = Bytes(source).PointL(11, 12);
  const std::string stretchedFrom = " Src=(9,10) cSrc=(11,12)" + sourced;
  const Bytes mask = Bytes().PointL(1, 1).U32(0).Zeros(16);
  const std::string masked = " Mask=(1,1) UsageMask=DIB_RGB_COLORS";
  const Bytes core = Bytes().U32(12).U16(2).U16(3).U16(1).U16(24);
  return {
      {{EMR_BITBLT},
       Bytes(destination).U32(0xCC0020).Append(source.Data()),
       placed + " BitBltRasterOperation=SRCCOPY Src=(9,10) cSrc=(7,8)" + sourced},
      {{EMR_STRETCHBLT},
       Bytes(destination).U32(0x123456).Append(stretched.Data()),
       placed + " BitBltRasterOperation=0x123456" + stretchedFrom},
      {{EMR_MASKBLT},
       Bytes(destination).U32(0xAACC0020).Append(source.Data()).Append(mask.Data()),
       placed + " ROP4=0xaacc0020 Src=(9,10) cSrc=(7,8)" + sourced + masked},
      {{EMR_PLGBLT},
       Bounded()
           .PointL(1, 2)
           .PointL(3, 4)
           .PointL(5, 6)
           .PointL(9, 10)
           .PointL(11, 12)
           .Append(Transform().Data())
           .U32(0xFF)
           .U32(1)
           .Zeros(16)
           .Append(mask.Data()),
       kBounded + " aptlDest=3:(1,2),(3,4),(5,6)" + stretchedFrom + masked},
      {{EMR_ALPHABLEND},
       Bytes(destination).Each({0, 128, 64, 1}).Append(stretched.Data()),
       placed + " BlendOperation=0 BlendFlags=128 SrcConstantAlpha=64 AlphaFormat=1" +
           stretchedFrom},
      {{EMR_TRANSPARENTBLT},
       Bytes(destination).U32(0xFF00).Append(stretched.Data()),
       placed + " TransparentColor=#00ff00" + stretchedFrom},
      {{EMR_SETDIBITSTODEVICE},
       Bounded()
           .PointL(5, 6)
           .PointL(9, 10)
           .PointL(11, 12)
           .U32(76)
           .U32(12)
           .U32(88)
           .U32(8)
           .U32(0)
           .U32(1)
           .U32(2)
           .Append(core.Data())
           .Zeros(8),
       kBounded +
           " Dest=(5,6) Src=(9,10) cSrc=(11,12) UsageSrc=DIB_RGB_COLORS iStartScan=1 cScans=2 "
           "HeaderSizeSrc=12 WidthSrc=2 HeightSrc=3 BitCountSrc=24 cbBmiSrc=12 cbBitsSrc=8"},
      {{EMR_STRETCHDIBITS},
       Bounded().PointL(5, 6).PointL(9, 10).PointL(11, 12).Zeros(16).U32(2).U32(0xF00021).PointL(7,
                                                                                                 8),
       placed + " Src=(9,10) cSrc=(11,12) UsageSrc=DIB_PAL_INDICES BitBltRasterOperation=PATCOPY"},
  };
}

/// EMRTEXT of two units, with their advances behind them.
Bytes StoredText(std::uint32_t options, std::uint32_t at, std::uint32_t advancesAt) {
  return Bytes().PointL(5, 6).U32(2).U32(at).U32(options).Rectangle(1, 2, 3, 4).U32(advancesAt);
}

Samples Texts() {
  const Bytes scaled = Bounded().U32(2).F32(26.5).F32(1);
  const std::string scale = kBounded + " iGraphicsMode=GM_ADVANCED exScale=26.5 eyScale=1";
  const std::string placed = " Reference=(5,6) Options=ETO_CLIPPED Rectangle=(1,2,3,4)";
  const std::string glyphs = " Reference=(5,6) Options=ETO_GLYPH_INDEX Rectangle=(1,2,3,4)";
  const Bytes small = Bytes().PointL(5, 6).U32(2);
  const std::string smallScale = " iGraphicsMode=GM_COMPATIBLE exScale=1 eyScale=2";
  return {
      {{EMR_EXTTEXTOUTA},
       Bytes(scaled).Append(StoredText(4, 76, 80).Data()).Each({'a', 'b', 0, 0}).U32(8).U32(9),
       scale + placed + R"( OutputString="ab" OutputDx=2:8,9)"},
      {{EMR_EXTTEXTOUTW},
       Bytes(scaled).Append(StoredText(4, 76, 0).Data()).Utf16(u"ab"),
       scale + placed + R"( OutputString="ab")"},
      {{EMR_EXTTEXTOUTW},
       Bytes(scaled).Append(StoredText(16, 76, 0).Data()).U16(1).U16(65535),
       scale + glyphs + " OutputString=2:1,65535"},
      {{EMR_POLYTEXTOUTA},
       Bytes(scaled).U32(1).Append(StoredText(4, 80, 0).Data()).Each({'a', 'b', 0, 0}),
       scale + " cStrings=1" + placed + R"( OutputString="ab")"},
      {{EMR_POLYTEXTOUTW},
       Bytes(scaled).U32(1).Append(StoredText(4, 80, 0).Data()).Utf16(u"ab"),
       scale + " cStrings=1" + placed + R"( OutputString="ab")"},
      {{EMR_SMALLTEXTOUT},
       Bytes(small).U32(0x300).U32(1).F32(1).F32(2).Each({'a', 0xE9, 0, 0}),
       " Reference=(5,6) fuOptions=ETO_NO_RECT|ETO_SMALL_CHARS" + smallScale +
           " TextString=\"a\u00e9\""},
      {{EMR_SMALLTEXTOUT},
       Bytes(small).U32(0).U32(1).F32(1).F32(2).Rectangle(1, 2, 3, 4).Utf16(u"ab"),
       " Reference=(5,6) fuOptions=0" + smallScale + kBounded + R"( TextString="ab")"},
  };
}

}  // namespace

Samples DrawingSamples() {
  return Joined({Lines(), Shapes(), PathsAndAreas(), Bitmaps(), Texts()});
}

}  // namespace kelvane::test

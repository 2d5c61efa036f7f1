#include "record_samples.h"

namespace kelvane::test {
namespace {

Samples State() {
  return {
      {{EMR_SAVEDC}, Bytes(), ""},
      {{EMR_RESTOREDC}, Bytes().I32(-2), " SavedDC=-2"},
      {{EMR_SETBKMODE}, Bytes().U32(1), " BackgroundMode=TRANSPARENT"},
      {{EMR_SETBKCOLOR, EMR_SETTEXTCOLOR}, Bytes().U32(0x30201), " Color=#010203"},
      {{EMR_SETPOLYFILLMODE}, Bytes().U32(2), " PolygonFillMode=WINDING"},
      {{EMR_SETROP2}, Bytes().U32(13), " ROP2Mode=R2_COPYPEN"},
      {{EMR_SETSTRETCHBLTMODE}, Bytes().U32(4), " StretchMode=STRETCH_HALFTONE"},
      {{EMR_SETTEXTALIGN}, Bytes().U32(6), " TextAlignmentMode=TA_CENTER|TA_TOP"},
      {{EMR_SETTEXTJUSTIFICATION}, Bytes().I32(-3).I32(4), " nBreakExtra=-3 nBreakCount=4"},
      {{EMR_SETMAPPERFLAGS}, Bytes().U32(1), " Flags=1"},
      {{EMR_SETMITERLIMIT}, Bytes().U32(10), " MiterLimit=10"},
      {{EMR_SETCOLORADJUSTMENT},
       Bytes().U16(24).U16(1).U16(2).U16(3).U16(4).U16(5).U16(6).U16(7).I16(-1).I16(-2).I16(-3).I16(
           -4),
       " Values=1 IlluminantIndex=2 RedGamma=3 GreenGamma=4 BlueGamma=5 ReferenceBlack=6 "
       "ReferenceWhite=7 Contrast=-1 Brightness=-2 Colorfulness=-3 RedGreenTint=-4"},
      {{EMR_SETMAPMODE}, Bytes().U32(7), " MapMode=MM_ISOTROPIC"},
      {{EMR_SETWINDOWORGEX, EMR_SETVIEWPORTORGEX, EMR_SETBRUSHORGEX},
       Bytes().PointL(5, -6),
       " Origin=(5,-6)"},
      {{EMR_SETWINDOWEXTEX, EMR_SETVIEWPORTEXTEX}, Bytes().PointL(5, -6), " Extent=(5,-6)"},
      {{EMR_SCALEVIEWPORTEXTEX, EMR_SCALEWINDOWEXTEX},
       Bytes().I32(1).I32(2).I32(-3).I32(4),
       " xNum=1 xDenom=2 yNum=-3 yDenom=4"},
      {{EMR_SETWORLDTRANSFORM}, Transform(), " Xform=" + kTransform},
      {{EMR_MODIFYWORLDTRANSFORM},
       Transform().U32(2),
       " Xform=" + kTransform + " ModifyWorldTransformMode=MWT_LEFTMULTIPLY"},
      {{EMR_SETLAYOUT}, Bytes().U32(9), " LayoutMode=LAYOUT_RTL|LAYOUT_BITMAPORIENTATIONPRESERVED"},
      {{EMR_SETARCDIRECTION}, Bytes().U32(2), " ArcDirection=AD_CLOCKWISE"},
  };
}

Samples Objects() {
  const Bytes entries = Bytes().U32(1).Each({1, 2, 3, 4});
  return {
      {{EMR_SELECTOBJECT, EMR_DELETEOBJECT}, Bytes().U32(3), " ihObject=3"},
      {{EMR_CREATEPEN},
       Bytes().U32(3).U32(1).PointL(2, 0).U32(0xFF),
       " ihPen=3 PenStyle=PS_DASH|PS_ENDCAP_ROUND|PS_JOIN_ROUND|PS_COSMETIC Width=(2,0) "
       "ColorRef=#ff0000"},
      {{EMR_EXTCREATEPEN},
       Bytes().U32(3).Zeros(16).U32(0x12207).U32(5).U32(2).U32(0xFF).U32(4).U32(2).U32(6).U32(7),
       " ihPen=3 PenStyle=PS_USERSTYLE|PS_ENDCAP_FLAT|PS_JOIN_MITER|PS_GEOMETRIC Width=5 "
       "BrushStyle=BS_HATCHED ColorRef=#ff0000 BrushHatch=HS_CROSS StyleEntry=2:6,7"},
      {{EMR_CREATEBRUSHINDIRECT},
       Bytes().U32(3).U32(2).U32(0xFF).U32(5),
       " ihBrush=3 BrushStyle=BS_HATCHED Color=#ff0000 BrushHatch=HS_DIAGCROSS"},
      {{EMR_CREATEMONOBRUSH, EMR_CREATEDIBPATTERNBRUSHPT},
       Bytes().U32(3).U32(0).U32(32).U32(40).U32(72).U32(4).BitmapHeader({.width = 2}).Zeros(4),
       " ihBrush=3 Usage=DIB_RGB_COLORS HeaderSize=40 Width=2 Height=1 BitCount=24 "
       "Compression=BI_RGB ColorUsed=0 cbBmi=40 cbBits=4"},
      {{EMR_SELECTPALETTE}, Bytes().U32(0x8000000F), " ihPal=DEFAULT_PALETTE"},
      {{EMR_CREATEPALETTE},
       Bytes().U32(3).U16(0x300).U16(1).Each({1, 2, 3, 4}),
       " ihPal=3 Version=768 PaletteEntries=1:(1,2,3,4)"},
      {{EMR_SETPALETTEENTRIES},
       Bytes().U32(3).U32(9).Append(entries.Data()),
       " ihPal=3 Start=9 aPalEntries=1:(1,2,3,4)"},
      {{EMR_RESIZEPALETTE}, Bytes().U32(3).U32(16), " ihPal=3 NumberOfEntries=16"},
      {{EMR_REALIZEPALETTE}, Bytes(), ""},
      {{EMR_COLORCORRECTPALETTE},
       Bytes().U32(3).U32(4).U32(5).U32(6),
       " ihPalette=3 nFirstEntry=4 nPalEntries=5 nReserved=6"},
  };
}

Samples Fonts() {
  const Bytes font = Bytes()
                         .U32(3)
                         .I32(-12)
                         .I32(1)
                         .I32(900)
                         .I32(2)
                         .I32(700)
                         .Each({1, 0, 1, 2, 3, 0x10, 5, 0x22})
                         .Utf16(u"Arial")
                         .Zeros(54);
  const std::string fields =
      " ihFonts=3 Height=-12 Width=1 Escapement=900 Orientation=2 Weight=700 Italic=1 Underline=0 "
      "StrikeOut=1 CharSet=SYMBOL_CHARSET OutPrecision=OUT_STROKE_PRECIS "
      "ClipPrecision=CLIP_LH_ANGLES "
      R"(Quality=CLEARTYPE_QUALITY PitchAndFamily=VARIABLE_PITCH|FF_SWISS Facename="Arial")";
  const Bytes named = Bytes(font).Utf16(u"Full").Zeros(120).Utf16(u"Bold").Zeros(56);
  const std::string names = R"( FullName="Full" Style="Bold")";
  return {
      {{EMR_EXTCREATEFONTINDIRECTW}, font, fields},
      {{EMR_EXTCREATEFONTINDIRECTW},
       Bytes(named).Zeros(24).Each({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 0, 0}),
       fields + names + " Panose=(1,2,3,4,5,6,7,8,9,10)"},
      {{EMR_EXTCREATEFONTINDIRECTW},
       Bytes(named).Utf16(u"Latin").Zeros(54).U32(0).U32(2).I32(-1).I32(7),
       fields + names + R"( Script="Latin" DesignVector=2:-1,7)"},
  };
}

Samples Colors() {
  const Bytes space = Bytes()
                          .U32(3)
                          .U32(0x50534F43)
                          .U32(0x400)
                          .U32(328)
                          .U32(0)
                          .U32(4)
                          .I32(-1)
                          .Zeros(32)
                          .U32(7)
                          .Zeros(8);
  const std::string fields =
      " ihCS=3 ColorSpaceType=0 Intent=4 Endpoints=9:-1,0,0,0,0,0,0,0,0 Gamma=3:7,0,0";
  const std::string profile = R"( Name="ab" Data=2:0102)";
  return {
      {{EMR_CREATECOLORSPACE},
       Bytes(space).Each({'a', 'b'}).Zeros(258),
       fields + R"( Filename="ab")"},
      {{EMR_CREATECOLORSPACEW},
       Bytes(space).Utf16(u"ab").Zeros(516).U32(1).U32(4).Each({1, 2, 3, 4}),
       fields + R"( Filename="ab" dwFlags=1 Data=4:01020304)"},
      {{EMR_SETCOLORSPACE, EMR_DELETECOLORSPACE}, Bytes().U32(3), " ihCS=3"},
      {{EMR_SETICMMODE}, Bytes().U32(2), " ICMMode=ICM_ON"},
      {{EMR_SETICMPROFILEA},
       Bytes().U32(5).U32(2).U32(2).Each({'a', 'b', 1, 2}),
       " dwFlags=5" + profile},
      {{EMR_SETICMPROFILEW},
       Bytes().U32(5).U32(6).U32(2).Utf16(u"ab").U16(0).Each({1, 2}),
       " dwFlags=5" + profile},
      {{EMR_COLORMATCHTOTARGETW},
       Bytes().U32(2).U32(1).U32(6).U32(2).Utf16(u"ab").U16(0).Each({1, 2}),
       " dwAction=CS_DISABLE dwFlags=1" + profile},
  };
}

Bytes Comment(const Bytes& data) {
  return Bytes().U32(static_cast<std::uint32_t>(data.Size())).Append(data.Data());
}

Samples Comments() {
  const Bytes plus = Bytes()
                         .U32(0x2B464D45)
                         .U16(0x4001)
                         .U16(0)
                         .U32(16)
                         .U32(4)
                         .Zeros(4)
                         .U16(0x4002)
                         .U16(0)
                         .U32(12)
                         .U32(0);
  const auto publicComment = [](std::uint32_t type) { return Bytes().U32(0x43494447).U32(type); };
  const std::string identified = " PublicCommentIdentifier=";
  return {
      {{EMR_COMMENT}, Comment(Bytes().Each({1, 2, 3, 4})), " DataSize=4 PrivateData=4:01020304"},
      {{EMR_COMMENT}, Comment(plus), " DataSize=32"},
      {{EMR_COMMENT},
       Comment(publicComment(3)),
       " DataSize=8" + identified + "EMR_COMMENT_ENDGROUP"},
      {{EMR_COMMENT},
       Comment(publicComment(2).Rectangle(1, 2, 3, 4).U32(2).Utf16(u"ab")),
       " DataSize=32" + identified +
           R"(EMR_COMMENT_BEGINGROUP Rectangle=(1,2,3,4) Description="ab")"},
      {{EMR_COMMENT},
       Comment(publicComment(0x40000004).Rectangle(1, 2, 3, 4).U32(1).U32(7).U32(1).U32(0).U32(44)),
       " DataSize=44" + identified +
           "EMR_COMMENT_MULTIFORMATS OutputRect=(1,2,3,4) aFormats=1:(7,1,0,44)"},
      {{EMR_COMMENT},
       Comment(
           publicComment(0x80000001).U16(0x300).U16(0).U32(0xAB).U32(0).U32(4).Each({1, 0, 9, 0})),
       " DataSize=28" + identified +
           "EMR_COMMENT_WINDOWS_METAFILE Version=0x300 Checksum=0xab Flags=0 "
           "WinMetafile=4:01000900"},
  };
}

Samples Control() {
  const Bytes pixelFormat = Bytes().U16(40).U16(1).U32(2).Each({3, 4}).Zeros(26).U32(9);
  return {
      {{EMR_HEADER},
       Bytes()
           .Rectangle(1, 2, 3, 4)
           .Rectangle(5, 6, 7, 8)
           .U32(0x464D4520)
           .U32(0x10000)
           .U32(9)
           .U32(10)
           .U16(11)
           .U16(0)
           .U32(4)
           .U32(108)
           .U32(12)
           .PointL(1000, 500)
           .PointL(200, 100)
           .U32(0)
           .U32(0)
           .U32(1)
           .PointL(200001, 100002)
           .Utf16({u"a\0b\0", 4}),
       kBounded + " Frame=(5,6,7,8) RecordSignature=0x464d4520 Version=0x10000 Bytes=9 Records=10 "
                  "Handles=11 nPalEntries=12 Device=(1000,500) Millimeters=(200,100) "
                  R"(Micrometers=(200001,100002) bOpenGL=1 Creator="a" Title="b")"},
      {{EMR_EOF}, Bytes().U32(1).U32(16).Each({1, 2, 3, 4}).U32(24), " PaletteBuffer=1:(1,2,3,4)"},
      {{EMR_DRAWESCAPE, EMR_EXTESCAPE},
       Bytes().U32(7).U32(4).Each({1, 2, 3, 4}),
       " iEscape=7 Data=4:01020304"},
      {{EMR_NAMEDESCAPE},
       Bytes().U32(7).U32(6).U32(2).Utf16(u"ab").U16(0).Each({1, 2}),
       R"( iEscape=7 DriverName="ab" Data=2:0102)"},
      {{EMR_GLSRECORD}, Bytes().U32(4).Each({1, 2, 3, 4}), " Data=4:01020304"},
      {{EMR_GLSBOUNDEDRECORD}, Bounded().U32(4).Each({1, 2, 3, 4}), kBounded + " Data=4:01020304"},
      {{EMR_PIXELFORMAT},
       pixelFormat,
       " pfd=(40,1,2,3,4,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,9)"},
      {{EMR_FORCEUFIMAPPING}, Bytes().U32(5).U32(6), " ufi=(5,6)"},
      {{EMR_SETLINKEDUFIS},
       Bytes().U32(2).U32(5).U32(6).U32(7).U32(8).Zeros(8),
       " ufis=2:(5,6),(7,8)"},
  };
}

}  // namespace

Bytes Bounded() {
  return Bytes().Rectangle(1, 2, 3, 4);
}

Bytes Transform() {
  return Bytes().F32(1).F32(0.5).F32(-2).F32(1).F32(10).F32(0);
}

Samples Joined(const std::vector<Samples>& families) {
  Samples all;
  for (const Samples& family : families)
    all.insert(all.end(), family.begin(), family.end());
  return all;
}

Samples StateSamples() {
  return Joined({State(), Objects(), Fonts(), Colors(), Comments(), Control()});
}

}  // namespace kelvane::test

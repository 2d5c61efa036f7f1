#include "metafile/wmf/wmf_record_type.h"

#include <set>

#include <gtest/gtest.h>

namespace kelvane::test {
namespace {

struct Named {
  std::uint16_t type;
  std::string_view name;
};

/// The numbers of [MS-WMF] 2.1.1.1, and of printing programs.
constexpr Named kNumbers[] = {
    {0x0000, "META_EOF"},
    {0x001E, "META_SAVEDC"},
    {0x0035, "META_REALIZEPALETTE"},
    {0x0037, "META_SETPALENTRIES"},
    {0x004F, "META_STARTPAGE"},
    {0x0050, "META_ENDPAGE"},
    {0x0052, "META_ABORTDOC"},
    {0x005E, "META_ENDDOC"},
    {0x00F7, "META_CREATEPALETTE"},
    {0x00F8, "META_CREATEBRUSH"},
    {0x0102, "META_SETBKMODE"},
    {0x0103, "META_SETMAPMODE"},
    {0x0104, "META_SETROP2"},
    {0x0105, "META_SETRELABS"},
    {0x0106, "META_SETPOLYFILLMODE"},
    {0x0107, "META_SETSTRETCHBLTMODE"},
    {0x0108, "META_SETTEXTCHAREXTRA"},
    {0x0127, "META_RESTOREDC"},
    {0x012A, "META_INVERTREGION"},
    {0x012B, "META_PAINTREGION"},
    {0x012C, "META_SELECTCLIPREGION"},
    {0x012D, "META_SELECTOBJECT"},
    {0x012E, "META_SETTEXTALIGN"},
    {0x0139, "META_RESIZEPALETTE"},
    {0x0142, "META_DIBCREATEPATTERNBRUSH"},
    {0x0149, "META_SETLAYOUT"},
    {0x014C, "META_RESETDC"},
    {0x014D, "META_STARTDOC"},
    {0x01F0, "META_DELETEOBJECT"},
    {0x01F9, "META_CREATEPATTERNBRUSH"},
    {0x0201, "META_SETBKCOLOR"},
    {0x0209, "META_SETTEXTCOLOR"},
    {0x020A, "META_SETTEXTJUSTIFICATION"},
    {0x020B, "META_SETWINDOWORG"},
    {0x020C, "META_SETWINDOWEXT"},
    {0x020D, "META_SETVIEWPORTORG"},
    {0x020E, "META_SETVIEWPORTEXT"},
    {0x020F, "META_OFFSETWINDOWORG"},
    {0x0211, "META_OFFSETVIEWPORTORG"},
    {0x0213, "META_LINETO"},
    {0x0214, "META_MOVETO"},
    {0x0220, "META_OFFSETCLIPRGN"},
    {0x0228, "META_FILLREGION"},
    {0x0231, "META_SETMAPPERFLAGS"},
    {0x0234, "META_SELECTPALETTE"},
    {0x02FA, "META_CREATEPENINDIRECT"},
    {0x02FB, "META_CREATEFONTINDIRECT"},
    {0x02FC, "META_CREATEBRUSHINDIRECT"},
    {0x02FD, "META_CREATEBITMAPINDIRECT"},
    {0x0324, "META_POLYGON"},
    {0x0325, "META_POLYLINE"},
    {0x0410, "META_SCALEWINDOWEXT"},
    {0x0412, "META_SCALEVIEWPORTEXT"},
    {0x0415, "META_EXCLUDECLIPRECT"},
    {0x0416, "META_INTERSECTCLIPRECT"},
    {0x0418, "META_ELLIPSE"},
    {0x0419, "META_FLOODFILL"},
    {0x041B, "META_RECTANGLE"},
    {0x041F, "META_SETPIXEL"},
    {0x0429, "META_FRAMEREGION"},
    {0x0436, "META_ANIMATEPALETTE"},
    {0x0521, "META_TEXTOUT"},
    {0x0538, "META_POLYPOLYGON"},
    {0x0548, "META_EXTFLOODFILL"},
    {0x061C, "META_ROUNDRECT"},
    {0x061D, "META_PATBLT"},
    {0x0626, "META_ESCAPE"},
    {0x062F, "META_DRAWTEXT"},
    {0x06FE, "META_CREATEBITMAP"},
    {0x06FF, "META_CREATEREGION"},
    {0x0817, "META_ARC"},
    {0x081A, "META_PIE"},
    {0x0830, "META_CHORD"},
    {0x0922, "META_BITBLT"},
    {0x0940, "META_DIBBITBLT"},
    {0x0A32, "META_EXTTEXTOUT"},
    {0x0B23, "META_STRETCHBLT"},
    {0x0B41, "META_DIBSTRETCHBLT"},
    {0x0D33, "META_SETDIBTODEV"},
    {0x0F43, "META_STRETCHDIB"},
};

TEST(WmfRecordType, HasTheNameOfItsNumber) {
  for (const auto& [type, name] : kNumbers)
    EXPECT_EQ(WmfRecordName(type), name);
}

TEST(WmfRecordType, HasNoNameForOtherNumbers) {
  std::size_t named = 0;
  for (std::uint32_t type = 0; type <= 0xFFFF; ++type)
    named += WmfRecordName(static_cast<std::uint16_t>(type)).empty() ? 0U : 1U;
  EXPECT_EQ(named, std::size(kNumbers));
}

TEST(WmfRecordType, IsToldByItsLowByteAlone) {
  std::set<std::size_t> indexes;
  for (const auto& [type, name] : kNumbers)
    EXPECT_TRUE(indexes.insert(WmfRecordIndex(type)).second) << name;
}

}  // namespace
}  // namespace kelvane::test

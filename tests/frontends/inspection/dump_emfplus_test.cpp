// The lines of EMF+ records.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "dumped.h"
#include "support/metafile.h"

namespace kelvane::test {
namespace {

constexpr std::uint32_t kEmfPlusVersion = 0xDBC01002;

/// An EMF+ record.
Bytes EmfPlus(std::uint32_t type, std::uint32_t flags, const Bytes& data) {
  const auto size = static_cast<std::uint32_t>(data.Size());
  return Bytes().U16(type).U16(flags).U32(12 + size).U32(size).Append(data.Data());
}

/// A file with a comment of EMF+.
std::vector<unsigned char> FileWithEmfPlus(const Bytes& records) {
  const auto size = static_cast<std::uint32_t>(4 + records.Size());
  return Metafile()
      .Record(EMR_GDICOMMENT, Bytes().U32(size).U32(0x2B464D45).Append(records.Data()))
      .Build();
}

/// @return the line of a record behind its offset.
std::string LineOf(std::uint32_t type, std::uint32_t flags, const Bytes& data) {
  const std::string line = Dumped(FileWithEmfPlus(EmfPlus(type, flags, data))).at(2);
  return line.substr(line.find(' ') + 1);
}

Bytes FourFloats() {
  return Bytes().F32(1).F32(2.5F).F32(3).F32(4);
}

TEST(EmfPlusDump, HasALineForEachRecordBelowItsComment) {
  const Bytes records = Bytes()
                            .Append(EmfPlus(0x4002, 0, {}).Data())
                            .Append(EmfPlus(0x4025, 0, Bytes().U32(7)).Data());
  const auto lines = Dumped(FileWithEmfPlus(records));
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_EQ(lines[1], "108 EMR_COMMENT Size=44 DataSize=32");
  EXPECT_EQ(lines[2], "124 EmfPlusEndOfFile Flags=0x0 DataSize=0");
  EXPECT_EQ(lines[3], "136 EmfPlusSave Flags=0x0 DataSize=4 StackIndex=7");
}

TEST(EmfPlusDump, HasTheFieldsOfRecords) {
  const struct {
    std::uint32_t type;
    std::uint32_t flags;
    Bytes data;
    std::string line;
  } rows[] = {
      {0x4001, 1, Bytes().U32(kEmfPlusVersion).U32(1).U32(96).U32(120),
       "EmfPlusHeader Flags=0x1 DataSize=16 Version=0xdbc01002 Dual=1 VideoDisplay=1 "
       "LogicalDpiX=96 LogicalDpiY=120"},
      {0x400A, 0x8000, Bytes().U32(0x80FF0001).U32(1).Append(FourFloats().Data()),
       "EmfPlusFillRects Flags=0x8000 DataSize=24 Brush=#80ff0001 RectData=1:(1,2.5,3,4)"},
      {0x400A, 0, Bytes().U32(7).U32(0),
       "EmfPlusFillRects Flags=0x0 DataSize=8 Brush=7 RectData=0"},
      {0x400D, 0x6005, Bytes().U32(2).Point(1, 2).Point(3, 4),
       "EmfPlusDrawLines Flags=0x6005 DataSize=12 Pen=5 Closed=1 PointData=2:(1,2),(3,4)"},
      {0x401C, 0x8003,
       Bytes().U32(0xFF000000).U32(9).U32(2).Append(FourFloats().Data()).Utf16(u"a\n"),
       "EmfPlusDrawString Flags=0x8003 DataSize=32 Font=3 Brush=#ff000000 Format=9 "
       "LayoutRect=(1,2.5,3,4) StringData=\"a\\n\""},
      {0x4036, 0x8003, Bytes().U32(0xFF000000).U32(0).U32(0).U32(1).U16(65).F32(1).F32(2),
       "EmfPlusDrawDriverString Flags=0x8003 DataSize=26 Font=3 Brush=#ff000000 Options=0 "
       "Glyphs=1:65 GlyphPos=1:(1,2)"},
      {0x4032, 0x0100, FourFloats(),
       "EmfPlusSetClipRect Flags=0x100 DataSize=16 CombineMode=1 ClipRect=(1,2.5,3,4)"},
      {0x402F, 0x2000, Bytes().F32(90),
       "EmfPlusRotateWorldTransform Flags=0x2000 DataSize=4 Append=1 Angle=90"},
  };
  for (const auto& row : rows)
    EXPECT_EQ(LineOf(row.type, row.flags, row.data), row.line);
}

TEST(EmfPlusDump, HasObjectsByKind) {
  const struct {
    std::uint32_t flags;
    Bytes data;
    std::string fields;
  } rows[] = {
      {0x0107, Bytes().U32(kEmfPlusVersion).U32(0).U32(0x80FF0001),
       R"(DataSize=12 Slot=7 ObjectType="Brush" Brush="Solid" Color=#80ff0001)"},
      {0x0300, Bytes().U32(kEmfPlusVersion).U32(1).U32(0x4000).Point(1, 2).U32(0),
       R"(DataSize=20 Slot=0 ObjectType="Path" Winding=0 PathPoints=1:(1,2) PathPointTypes=1:0)"},
      {0x0600, Bytes().U32(kEmfPlusVersion).F32(12).U32(3).I32(1).U32(0).U32(2).Utf16(u"Ab"),
       R"(DataSize=28 Slot=0 ObjectType="Font" EmSize=12 SizeUnit=3 FontStyleFlags=1 FamilyName="Ab")"},
      {0x0400, Bytes().U32(kEmfPlusVersion).U32(0).U32(0x10000003),
       R"(DataSize=12 Slot=0 ObjectType="Region" RegionNodes=1)"},
      {0x0107, Bytes().U32(0),
       R"(DataSize=4 Slot=7 ObjectType="Brush" Damaged="it cannot be read")"},
      {0x0140, Bytes().U32(0),
       R"(DataSize=4 Damaged="it is no object, or its pieces do not make one")"},
      {0x8107, Bytes().U32(9).U32(0), R"(DataSize=8 Slot=7 Piece=8:0900000000000000)"},
  };
  for (const auto& row : rows) {
    const std::string line = LineOf(0x4008, row.flags, row.data);
    EXPECT_EQ(line.substr(line.find("DataSize")), row.fields);
  }
}

TEST(EmfPlusDump, SaysWhichRecordIsDamaged) {
  EXPECT_EQ(LineOf(0x4025, 0, {}),
            R"(EmfPlusSave Flags=0x0 DataSize=0 Damaged="its data end early")");
}

TEST(EmfPlusDump, HasTheBytesOfWhatHasNoFieldsOrNoName) {
  EXPECT_EQ(LineOf(0x4003, 0, Bytes().U32(1)),
            "EmfPlusComment Flags=0x0 DataSize=4 Data=4:01000000");
  EXPECT_EQ(LineOf(0x4100, 0, Bytes().U32(1)),
            "UNKNOWN Type=0x4100 Flags=0x0 DataSize=4 Data=4:01000000");
}

}  // namespace
}  // namespace kelvane::test

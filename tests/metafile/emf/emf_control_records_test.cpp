#include "metafile/emf/emf_control_records.h"

#include <gtest/gtest.h>

#include "decoded_record.h"

namespace kelvane::test {
namespace {

using Uchars = std::vector<unsigned char>;

TEST(EofRecord, HasAPalette) {
  const auto record = Decode(DecodeEof, Bytes().U32(1).U32(16).U32(0x04030201).U32(24), 12);
  EXPECT_EQ(Elements(record->palette), (std::vector<PaletteEntry>{{1, 2, 3, 4}}));
}

TEST(EofRecord, MayHaveNoneWhereverItIsSaidToBe) {
  const auto record = Decode(DecodeEof, Bytes().U32(0).U32(22).U32(20), 8);
  EXPECT_TRUE(record->palette.empty());
}

TEST(EscapeRecord, HasANumberAndData) {
  const auto record = Decode(DecodeEscape, Bytes().U32(38).U32(3).Each({1, 2, 3}));
  EXPECT_EQ(record->escape, 38U);
  EXPECT_EQ(BytesOf(record->data), (Uchars{1, 2, 3}));
}

TEST(NamedEscapeRecord, HasADriverAndData) {
  const auto record =
      Decode(DecodeNamedEscape, Bytes().U32(38).U32(4).U32(1).Utf16({u"d\0", 2}).U8(5));
  EXPECT_EQ(record->escape, 38U);
  EXPECT_EQ(BytesOf(record->driver), (Uchars{'d', 0, 0, 0}));
  EXPECT_EQ(BytesOf(record->data), (Uchars{5}));
}

TEST(GlsRecord, HasData) {
  EXPECT_EQ(BytesOf(Decode(DecodeGls, Bytes().U32(2).Each({1, 2}))->data), (Uchars{1, 2}));
}

TEST(GlsBoundedRecord, HasBoundsAndData) {
  const auto record = Decode(DecodeGlsBounded, Bytes().Rectangle(1, 2, 3, 4).U32(2).Each({1, 2}));
  EXPECT_EQ(record->bounds, (RectangleL{1, 2, 3, 4}));
  EXPECT_EQ(BytesOf(record->data), (Uchars{1, 2}));
}

TEST(PixelFormatRecord, HasADescriptor) {
  const auto record = Decode(DecodePixelFormat, Bytes()
                                                    .U16(40)
                                                    .U16(1)
                                                    .U32(0x25)
                                                    .Each({0, 24, 8, 16, 8, 8, 8, 0, 0, 0})
                                                    .Each({0, 0, 0, 0, 0, 32, 7, 0, 9, 0})
                                                    .U32(1)
                                                    .U32(2)
                                                    .U32(3));
  EXPECT_EQ(record->pixelFormat.size, 40);
  EXPECT_EQ(record->pixelFormat.flags, 0x25U);
  EXPECT_EQ(record->pixelFormat.colorBits, 24);
  EXPECT_EQ(record->pixelFormat.depthBits, 32);
  EXPECT_EQ(record->pixelFormat.stencilBits, 7);
  EXPECT_EQ(record->pixelFormat.layerType, 9);
  EXPECT_EQ(record->pixelFormat.damageMask, 3U);
}

TEST(ForceUfiMappingRecord, HasAFontId) {
  EXPECT_EQ(Decode(DecodeForceUfiMapping, Bytes().U32(1).U32(2))->ufi, (UniversalFontId{1, 2}));
}

TEST(SetLinkedUfisRecord, HasFontIds) {
  const auto record = Decode(DecodeSetLinkedUfis, Bytes().U32(1).U32(2).U32(3).Zeros(8), 12);
  EXPECT_EQ(Elements(record->ufis), (std::vector<UniversalFontId>{{2, 3}}));
}

}  // namespace
}  // namespace kelvane::test

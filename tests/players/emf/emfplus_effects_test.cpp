#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "players/traced_metafile.h"
#include "support/bytes.h"
#include "support/metafile.h"

namespace kelvane::test {
namespace {

using testing::HasSubstr;

Bytes PlusRecord(std::uint32_t type, std::uint32_t flags, const Bytes& data) {
  const auto size = static_cast<std::uint32_t>(data.Size());
  return Bytes().U16(type).U16(flags).U32(12 + size).U32(size).Append(data.Data());
}

/// An image of one pixel with an effect.
std::vector<unsigned char> FileWithEffect(std::initializer_list<std::uint32_t> guid) {
  constexpr std::uint32_t kVersion = 0xDBC01002;
  constexpr std::uint32_t kRgb24 = 0x00021808;
  constexpr std::uint32_t kImage = 5U << 8;
  constexpr std::uint32_t kWholeNumbers = 0x4000;
  constexpr std::uint32_t kHasEffect = 0x2000;
  constexpr std::uint32_t kPixels = 2;
  Bytes image;
  image.U32(kVersion).U32(1).U32(1).U32(1).U32(4).U32(kRgb24).U32(0).Each({1, 2, 3, 0});
  Bytes draw;
  draw.U32(0xFFFFFFFF).U32(kPixels).F32(0).F32(0).F32(1).F32(1).U32(3);
  draw.Point(0, 0).Point(9, 0).Point(0, 9);
  Bytes records = Bytes().Each({'E', 'M', 'F', '+'});
  records.Append(PlusRecord(0x4001, 0, Bytes().U32(kVersion).U32(1).U32(96).U32(96)).Data());
  records.Append(PlusRecord(0x4008, kImage, image).Data());
  records.Append(PlusRecord(0x4038, 0, Bytes().Each(guid).U32(0)).Data());
  records.Append(PlusRecord(0x401B, kWholeNumbers | kHasEffect, draw).Data());
  Metafile metafile;
  metafile.Record(EMR_GDICOMMENT,
                  Bytes().U32(static_cast<std::uint32_t>(records.Size())).Append(records.Data()));
  return metafile.Build();
}

TEST(EmfPlusEffects, AreReportedByTheirNames) {
  const PlayedMetafile played =
      Played(FileWithEffect({0xA4, 0x80, 0x3C, 0x63, 0x43, 0x18, 0x2B, 0x48, 0x9E, 0xF2, 0xBE, 0x28,
                             0x34, 0xC5, 0xFD, 0xD4}));
  EXPECT_THAT(played.report, HasSubstr("its effect Blur is not applied"));
}

TEST(EmfPlusEffects, AreReportedThoughNobodyKnowsThem) {
  const PlayedMetafile played =
      Played(FileWithEffect({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}));
  EXPECT_THAT(played.report, HasSubstr("its effect of an unknown kind is not applied"));
}

}  // namespace
}  // namespace kelvane::test

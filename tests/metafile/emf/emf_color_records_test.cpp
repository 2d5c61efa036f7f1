#include "metafile/emf/emf_color_records.h"

#include <gtest/gtest.h>

#include "decoded_record.h"

namespace kelvane::test {
namespace {

using Uchars = std::vector<unsigned char>;

Bytes SpaceBytes() {
  return Bytes()
      .U32(0x50534F43)
      .U32(0x400)
      .U32(328)
      .U32(1)
      .U32(2)
      .I32(-11)
      .Zeros(28)
      .I32(19)
      .U32(21)
      .U32(22)
      .U32(23);
}

void ExpectTheSpace(const LogColorSpace& space) {
  EXPECT_EQ(space.signature, 0x50534F43U);
  EXPECT_EQ(space.size, 328U);
  EXPECT_EQ(space.type, 1U);
  EXPECT_EQ(space.intent, 2U);
  EXPECT_EQ(space.endpoints.front(), -11);
  EXPECT_EQ(space.endpoints.back(), 19);
  EXPECT_EQ(space.gamma, (std::array<std::uint32_t, 3>{21, 22, 23}));
}

TEST(CreateColorSpaceRecord, HasASpaceAndANameOfBytes) {
  const auto record = Decode(DecodeCreateColorSpace,
                             Bytes().U32(1).Append(SpaceBytes().Data()).Each({'a'}).Zeros(259));
  EXPECT_EQ(record->ihCS, 1U);
  ExpectTheSpace(record->space);
  EXPECT_EQ(record->fileName.size(), 260U);
  EXPECT_EQ(record->fileName[0], 'a');
}

TEST(CreateColorSpaceWRecord, HasASpaceANameAndAProfile) {
  const auto record = Decode(DecodeCreateColorSpaceW, Bytes()
                                                          .U32(1)
                                                          .Append(SpaceBytes().Data())
                                                          .Utf16(u"a")
                                                          .Zeros(518)
                                                          .U32(1)
                                                          .U32(3)
                                                          .Each({7, 8, 9}));
  EXPECT_EQ(record->ihCS, 1U);
  ExpectTheSpace(record->space);
  EXPECT_EQ(record->fileName.size(), 260U);
  EXPECT_EQ(record->fileName[0], u'a');
  EXPECT_EQ(record->flags, 1U);
  EXPECT_EQ(BytesOf(record->data), (Uchars{7, 8, 9}));
}

TEST(ColorSpaceRecord, HasAnIndex) {
  EXPECT_EQ(Decode(DecodeColorSpace, Bytes().U32(3))->ihCS, 3U);
}

TEST(SetIcmModeRecord, HasAMode) {
  EXPECT_EQ(Decode(DecodeSetIcmMode, Bytes().U32(2))->mode, ICM_ON);
}

TEST(SetIcmProfileRecord, HasANameAndAProfile) {
  const auto record =
      Decode(DecodeSetIcmProfile, Bytes().U32(1).U32(2).U32(3).Each({4, 5}).Each({6, 7, 8}));
  EXPECT_EQ(record->flags, 1U);
  EXPECT_EQ(BytesOf(record->name), (Uchars{4, 5}));
  EXPECT_EQ(BytesOf(record->data), (Uchars{6, 7, 8}));
}

TEST(ColorMatchToTargetWRecord, HasANameAndAProfile) {
  const auto record = Decode(DecodeColorMatchToTargetW,
                             Bytes().U32(2).U32(1).U32(2).U32(3).Each({4, 5}).Each({6, 7, 8}));
  EXPECT_EQ(record->action, CS_DISABLE);
  EXPECT_EQ(record->flags, 1U);
  EXPECT_EQ(BytesOf(record->name), (Uchars{4, 5}));
  EXPECT_EQ(BytesOf(record->data), (Uchars{6, 7, 8}));
}

}  // namespace
}  // namespace kelvane::test

#include "platform/pdf/cff_charset.h"

#include <gmock/gmock.h>

namespace kelvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Bytes = std::vector<unsigned char>;

/// A program whose charset starts behind its Top DICT.
Bytes Program(const Bytes& topDict, const Bytes& charset) {
  Bytes bytes = {1, 0, 4, 1};                       // header of 4 bytes
  bytes.insert(bytes.end(), {0, 1, 1, 1, 2, 'N'});  // INDEX of one name
  const auto dictEnd = static_cast<unsigned char>(1 + topDict.size());
  bytes.insert(bytes.end(), {0, 1, 1, 1, dictEnd});  // INDEX of one Top DICT
  bytes.insert(bytes.end(), topDict.begin(), topDict.end());
  bytes.insert(bytes.end(), charset.begin(), charset.end());
  return bytes;
}

constexpr unsigned char kTopDictAt = 15;

/// A Top DICT of 13 bytes: registry, ordering and supplement, then the charset's place.
Bytes DictWithIdentifiers() {
  return {28, 1, 135, 28, 1, 136, 139, 12, 30, 28, 0, kTopDictAt + 13, 15};
}

TEST(CffCharacterIdentifiers, AreListedOneByOne) {
  const Bytes program = Program(DictWithIdentifiers(), {0, 0, 7, 1, 0});
  EXPECT_THAT(CffCharacterIdentifiers(program, 3), ElementsAre(0, 7, 256));
}

TEST(CffCharacterIdentifiers, StandInRangesOfByteLength) {
  const Bytes program = Program(DictWithIdentifiers(), {1, 0, 7, 2, 0, 20, 0});
  EXPECT_THAT(CffCharacterIdentifiers(program, 5), ElementsAre(0, 7, 8, 9, 20));
}

TEST(CffCharacterIdentifiers, StandInRangesOfTwoByteLength) {
  const Bytes program = Program(DictWithIdentifiers(), {2, 0, 7, 0, 1});
  EXPECT_THAT(CffCharacterIdentifiers(program, 3), ElementsAre(0, 7, 8));
}

TEST(CffCharacterIdentifiers, AreFoundBehindNumbersOfEveryKind) {
  constexpr unsigned char kDictSize = 34;
  const Bytes parts[] = {
      {139, 139, 139, 12, 30},        // 0 0 0, identifiers
      {247, 0, 251, 0, 13},           // 108 -108, an operator of no interest
      {28, 1, 0, 14},                 // 256
      {30, 0xA1, 0x40, 0x5F, 12, 7},  // .1405
      {30, 0x12, 0xFF, 16},           // 12
      {29, 0, 0, 1, 0, 17, 246, 17},  // 256 and 107
      {139 + kTopDictAt + kDictSize, 15},
  };
  Bytes everyKind;
  for (const Bytes& part : parts)
    everyKind.insert(everyKind.end(), part.begin(), part.end());
  ASSERT_EQ(everyKind.size(), kDictSize);
  EXPECT_THAT(CffCharacterIdentifiers(Program(everyKind, {0, 0, 7}), 2), ElementsAre(0, 7));
}

TEST(CffCharacterIdentifiers, AreFoundAtAPlaceInFourBytes) {
  const Bytes dict = {28, 1, 135, 28, 1, 136, 139, 12, 30, 29, 0, 0, 0, kTopDictAt + 15, 15};
  EXPECT_THAT(CffCharacterIdentifiers(Program(dict, {0, 0, 7}), 2), ElementsAre(0, 7));
}

TEST(CffCharacterIdentifiers, EndWithTheTable) {
  const Bytes program = Program(DictWithIdentifiers(), {0, 0, 7});
  EXPECT_THAT(CffCharacterIdentifiers(program, 1000), ElementsAre(0, 7));
}

TEST(CffCharacterIdentifiers, AreNoneWhenGlyphsAreKnownByName) {
  const Bytes program = Program({28, 0, kTopDictAt + 4, 15}, {0, 0, 7});
  EXPECT_THAT(CffCharacterIdentifiers(program, 2), IsEmpty());
}

TEST(CffCharacterIdentifiers, AreNoneInABrokenProgram) {
  Bytes program = Program(DictWithIdentifiers(), {0, 0, 7});
  program.resize(kTopDictAt + 2);
  EXPECT_THAT(CffCharacterIdentifiers(program, 2), IsEmpty());
}

TEST(CffCharacterIdentifiers, AreNoneWithoutATopDict) {
  const Bytes program = {1, 0, 4, 1, 0, 1, 1, 1, 2, 'N', 0, 0, 0, 0, 7};
  EXPECT_THAT(CffCharacterIdentifiers(program, 2), IsEmpty());
}

TEST(CffCharacterIdentifiers, AreNoneInNoProgram) {
  EXPECT_THAT(CffCharacterIdentifiers({}, 2), IsEmpty());
}

}  // namespace
}  // namespace kelvane

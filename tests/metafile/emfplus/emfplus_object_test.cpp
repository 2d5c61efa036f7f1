#include "metafile/emfplus/emfplus_object.h"

#include <gtest/gtest.h>

#include "emfplus_decoding.h"
#include "emfplus_objects.h"

namespace kelvane::test {
namespace {

using Assembler = EmfPlusObjectAssembler;
using Progress = EmfPlusObjectAssembler::Progress;

constexpr std::uint32_t kPiece = 0x8000;
constexpr std::uint32_t kBrushAt7 = 0x0107;
constexpr std::uint32_t kImageAt7 = 0x0507;

/// Bytes of an object, from one on.
Bytes Part(const Bytes& object, std::size_t from, std::size_t count) {
  const auto first = object.Data().begin() + static_cast<std::ptrdiff_t>(from);
  return Bytes().Append({first, first + static_cast<std::ptrdiff_t>(count)});
}

Bytes Piece(std::size_t total, const Bytes& part) {
  return Bytes().U32(static_cast<std::uint32_t>(total)).Append(part.Data());
}

Progress Add(Assembler& assembler, std::uint32_t flags, const Bytes& data,
             EmfPlusStoredObject& stored) {
  return assembler.Add(StoredEmfPlusRecord(flags, data.Data()).Record(), stored);
}

TEST(EmfPlusObject, IsOfTheTypeThatItsRecordSays) {
  const struct {
    EmfPlusObjectType type;
    Bytes bytes;
  } rows[] = {
      {EmfPlusObjectType::kBrush, SolidBrush(0)},
      {EmfPlusObjectType::kPen,
       Bytes().U32(kVersion).U32(0).U32(0).U32(2).F32(1).Append(SolidBrush(0).Data())},
      {EmfPlusObjectType::kPath, LinePath()},
      {EmfPlusObjectType::kRegion, Bytes().U32(kVersion).U32(0).U32(0x10000003)},
      {EmfPlusObjectType::kImage, PixelImage()},
      {EmfPlusObjectType::kFont, Bytes().U32(kVersion).Zeros(20)},
      {EmfPlusObjectType::kStringFormat, Bytes().U32(kVersion).Zeros(56)},
      {EmfPlusObjectType::kImageAttributes, Bytes().U32(kVersion).Zeros(20)},
      {EmfPlusObjectType::kCustomLineCap, Bytes().U32(kVersion).I32(1).Zeros(60)},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ReadEmfPlusObject(row.type, ByteView(row.bytes.Data())).index(),
              static_cast<std::size_t>(row.type));
    EXPECT_EQ(ReadEmfPlusObject(row.type, {}).index(), 0U);
  }
}

TEST(EmfPlusObject, IsNothingOfAnUnknownType) {
  const Bytes bytes = SolidBrush(0);
  for (const unsigned type : {0U, 10U, 127U}) {
    EXPECT_EQ(
        ReadEmfPlusObject(static_cast<EmfPlusObjectType>(type), ByteView(bytes.Data())).index(),
        0U);
  }
}

TEST(EmfPlusObjectAssembler, TakesAWholeObjectAsItIs) {
  Assembler assembler;
  EmfPlusStoredObject stored;
  ASSERT_EQ(Add(assembler, kBrushAt7, SolidBrush(0x80FF0000), stored), Progress::kWhole);
  EXPECT_EQ(stored.slot, 7U);
  EXPECT_EQ(stored.type, EmfPlusObjectType::kBrush);
  EXPECT_EQ(stored.assembled, nullptr);
  EXPECT_EQ(std::get<Argb>(std::get<EmfPlusBrush>(stored.object)), (Argb{0, 0, 255, 128}));
}

TEST(EmfPlusObjectAssembler, GivesWhatCannotBeReadASlotToLeaveEmpty) {
  Assembler assembler;
  EmfPlusStoredObject stored;
  ASSERT_EQ(Add(assembler, kBrushAt7, SolidBrush(0), stored), Progress::kWhole);
  ASSERT_EQ(Add(assembler, kBrushAt7, Bytes().Zeros(12), stored), Progress::kWhole);
  EXPECT_EQ(stored.slot, 7U);
  EXPECT_EQ(stored.object.index(), 0U);
}

TEST(EmfPlusObjectAssembler, HasSlotsUpTo63) {
  Assembler assembler;
  EmfPlusStoredObject stored;
  EXPECT_EQ(Add(assembler, 0x013F, SolidBrush(0), stored), Progress::kWhole);
  EXPECT_EQ(Add(assembler, 0x0140, SolidBrush(0), stored), Progress::kBroken);
  EXPECT_EQ(Add(assembler, kPiece | 0x0140, Piece(4, Bytes().Zeros(4)), stored), Progress::kBroken);
}

TEST(EmfPlusObjectAssembler, PutsPiecesTogether) {
  const Bytes image = PixelImage();
  Assembler assembler;
  EmfPlusStoredObject stored;
  EXPECT_EQ(Add(assembler, kPiece | kImageAt7, Piece(image.Size(), Part(image, 0, 12)), stored),
            Progress::kPending);
  EXPECT_EQ(Add(assembler, kPiece | kImageAt7, Piece(image.Size(), Part(image, 12, 16)), stored),
            Progress::kPending);
  ASSERT_EQ(Add(assembler, kPiece | kImageAt7, Piece(image.Size(), Part(image, 28, 4)), stored),
            Progress::kWhole);
  EXPECT_EQ(stored.slot, 7U);
  EXPECT_EQ(stored.type, EmfPlusObjectType::kImage);
  const auto& pixels = std::get<EmfPlusPixels>(std::get<EmfPlusImage>(stored.object));
  ASSERT_NE(stored.assembled, nullptr);
  EXPECT_EQ(pixels.rows.data(), stored.assembled->data() + 28);
}

TEST(EmfPlusObjectAssembler, TakesALastPieceThatLooksWhole) {
  const Bytes image = PixelImage();
  Assembler assembler;
  EmfPlusStoredObject stored;
  EXPECT_EQ(Add(assembler, kPiece | kImageAt7, Piece(image.Size(), Part(image, 0, 12)), stored),
            Progress::kPending);
  ASSERT_EQ(Add(assembler, kImageAt7, Part(image, 12, 20), stored), Progress::kWhole);
  EXPECT_TRUE(std::holds_alternative<EmfPlusImage>(stored.object));
}

TEST(EmfPlusObjectAssembler, CutsOffWhatFillsTheLastPieceUp) {
  const Bytes file = Bytes().U32(kVersion).U32(1).Zeros(16).U32(1).Each({7});
  const Bytes filled = Bytes().Append(file.Data()).Zeros(3);
  Assembler assembler;
  EmfPlusStoredObject stored;
  ASSERT_EQ(Add(assembler, kPiece | kImageAt7, Piece(file.Size(), filled), stored),
            Progress::kWhole);
  EXPECT_EQ(std::get<EmfPlusImageFile>(std::get<EmfPlusImage>(stored.object)).bytes.size(), 1U);
}

TEST(EmfPlusObjectAssembler, RefusesMoreThanThePiecesSaid) {
  const Bytes image = PixelImage();
  Assembler assembler;
  EmfPlusStoredObject stored;
  EXPECT_EQ(Add(assembler, kPiece | kImageAt7, Piece(20, Part(image, 0, 12)), stored),
            Progress::kPending);
  EXPECT_EQ(Add(assembler, kPiece | kImageAt7, Piece(20, Part(image, 12, 12)), stored),
            Progress::kBroken);
  EXPECT_EQ(Add(assembler, kImageAt7, image, stored), Progress::kWhole);
}

TEST(EmfPlusObjectAssembler, RefusesALastPieceThatLeavesSomethingToCome) {
  const Bytes image = PixelImage();
  Assembler assembler;
  EmfPlusStoredObject stored;
  EXPECT_EQ(Add(assembler, kPiece | kImageAt7, Piece(0xFFFFFFFF, Part(image, 0, 12)), stored),
            Progress::kPending);
  EXPECT_EQ(Add(assembler, kImageAt7, Part(image, 12, 12), stored), Progress::kBroken);
}

TEST(EmfPlusObjectAssembler, DropsPiecesThatAnotherObjectFollows) {
  const Bytes image = PixelImage();
  const Bytes first = Piece(image.Size(), Part(image, 0, 12));
  const Bytes second = Piece(image.Size(), Part(image, 12, 20));
  Assembler assembler;
  EmfPlusStoredObject stored;
  EXPECT_EQ(Add(assembler, kPiece | kImageAt7, first, stored), Progress::kPending);
  EXPECT_EQ(Add(assembler, kBrushAt7, SolidBrush(0), stored), Progress::kWhole);
  EXPECT_EQ(Add(assembler, kPiece | kImageAt7, second, stored), Progress::kPending);

  assembler.Drop();
  EXPECT_EQ(Add(assembler, kPiece | kImageAt7, first, stored), Progress::kPending);
  assembler.Drop();
  EXPECT_EQ(Add(assembler, kPiece | kImageAt7, second, stored), Progress::kPending);
}

TEST(EmfPlusObjectAssembler, RefusesAPieceWithoutASize) {
  Assembler assembler;
  EmfPlusStoredObject stored;
  EXPECT_EQ(Add(assembler, kPiece | kImageAt7, Bytes().Zeros(3), stored), Progress::kBroken);
}

}  // namespace
}  // namespace kelvane::test

#include "metafile/wmf/wmf_escape_records.h"

#include <gtest/gtest.h>

#include "wmf_decoding.h"

namespace kelvane::test {
namespace {

/// The fields of a piece but for its data, 34 bytes.
Bytes PieceFields(std::uint32_t pieces, std::uint32_t size, std::uint32_t remaining,
                  std::uint32_t whole) {
  const Bytes head = Bytes().U32(0x43464D57).U32(1).U32(0x10000).U16(0xABCD).U32(0);
  return Bytes(head).U32(pieces).U32(size).U32(remaining).U32(whole);
}

WmfEmfPiece Piece(const Bytes& data, std::uint32_t pieces, std::uint32_t remaining,
                  std::uint32_t whole) {
  return {0, pieces, remaining, whole, ByteView(data.Data())};
}

TEST(WmfEscapeRecord, HasAsManyBytesAsItSays) {
  const auto record = DecodeWmf(DecodeWmfEscape, Bytes().U16(0x15).U16(4).U32(2));
  EXPECT_EQ(record->escape, SETLINECAP);
  EXPECT_EQ(BytesOf(record->data), (std::vector<unsigned char>{2, 0, 0, 0}));
}

TEST(WmfEmfPiece, HasItsPartOfTheMetafile) {
  const Bytes data = PieceFields(3, 2, 7, 20).Each({0x11, 0x22});
  const auto piece = ReadWmfEmfPiece({MFCOMMENT, ByteView(data.Data())});
  ASSERT_TRUE(piece);
  EXPECT_EQ(piece->checksum, 0xABCD);
  EXPECT_EQ(piece->pieces, 3U);
  EXPECT_EQ(piece->remaining, 7U);
  EXPECT_EQ(piece->size, 20U);
  EXPECT_EQ(BytesOf(piece->data), (std::vector<unsigned char>{0x11, 0x22}));
}

TEST(WmfEmfPiece, IsNoOtherComment) {
  const Bytes whole = PieceFields(1, 2, 0, 2).Each({0x11, 0x22});
  EXPECT_FALSE(ReadWmfEmfPiece({SETLINECAP, ByteView(whole.Data())}));
  for (std::size_t size = 0; size < whole.Size(); ++size)
    EXPECT_FALSE(ReadWmfEmfPiece({MFCOMMENT, ByteView(std::span(whole.Data()).first(size))}));
  for (const std::size_t at : {0U, 4U, 8U}) {  // identifier, type, version
    auto other = whole.Data();
    other[at] ^= 0x80;
    EXPECT_FALSE(ReadWmfEmfPiece({MFCOMMENT, ByteView(other)}));
  }
}

TEST(WmfEmfAssembler, PutsPiecesTogetherInTheirOrder) {
  const Bytes first = Bytes().Each({1, 2, 3});
  const Bytes second = Bytes().Each({4, 5});
  WmfEmfAssembler emf;
  EXPECT_FALSE(emf.HasPieces());
  EXPECT_FALSE(emf.TakeWhole());
  emf.Add(Piece(first, 2, 2, 5));
  EXPECT_TRUE(emf.HasPieces());
  EXPECT_FALSE(emf.TakeWhole());
  emf.Add(Piece(second, 2, 0, 5));
  EXPECT_EQ(emf.TakeWhole(), (std::vector<unsigned char>{1, 2, 3, 4, 5}));
}

TEST(WmfEmfAssembler, GivesNothingOfPiecesThatDoNotFit) {
  const Bytes first = Bytes().Each({1, 2, 3});
  const Bytes second = Bytes().Each({4, 5});
  const auto isWhole = [&](const WmfEmfPiece& next) {
    WmfEmfAssembler emf;
    emf.Add(Piece(first, 2, 2, 5));
    emf.Add(next);
    return emf.TakeWhole().has_value();
  };
  EXPECT_TRUE(isWhole(Piece(second, 2, 0, 5)));
  EXPECT_FALSE(isWhole(Piece(second, 3, 0, 5))) << "another number of pieces";
  EXPECT_FALSE(isWhole(Piece(second, 2, 0, 6))) << "another size";
  EXPECT_FALSE(isWhole(Piece(second, 2, 1, 5))) << "more to come";
  EXPECT_FALSE(isWhole(Piece(first, 2, 0, 5))) << "a piece too large";
}

TEST(WmfEmfAssembler, GivesNothingOnceThereIsAPieceTooMany) {
  const Bytes only = Bytes().Each({1, 2, 3});
  const Bytes none;
  WmfEmfAssembler emf;
  emf.Add(Piece(only, 1, 0, 3));
  EXPECT_TRUE(emf.TakeWhole());
  emf.Add(Piece(none, 1, 0, 3));
  EXPECT_FALSE(emf.TakeWhole());
}

}  // namespace
}  // namespace kelvane::test

#include "metafile/emf/emf_comment_records.h"

#include <gtest/gtest.h>

#include "decoded_record.h"
#include "metafile/emf/emf_header.h"

namespace kelvane::test {
namespace {

using Uchars = std::vector<unsigned char>;

constexpr std::uint32_t kPublic = 0x43494447;

Bytes CommentBody(const Bytes& data) {
  return Bytes().U32(static_cast<std::uint32_t>(data.Size())).Append(data.Data());
}

EmfCommentKind KindOf(const Bytes& data) {
  return Decode(DecodeComment, CommentBody(data))->kind;
}

TEST(CommentRecord, HasAllDataOfAPrivateComment) {
  const auto record = Decode(DecodeComment, CommentBody(Bytes().Each({1, 2, 3, 4, 5})));
  EXPECT_EQ(record->kind, EmfCommentKind::kPrivate);
  EXPECT_EQ(record->data.Remaining(), 5U);
}

TEST(CommentRecord, HasWhatFollowsTheIdentifierOfOthers) {
  const auto record = Decode(DecodeComment, CommentBody(Bytes().U32(0x2B464D45).U16(0x4001)));
  EXPECT_EQ(record->kind, EmfCommentKind::kEmfPlus);
  ByteView data = record->data;
  EXPECT_EQ(data.Read<std::uint16_t>(), 0x4001);
}

TEST(CommentRecord, HasTheDataThatAreThereWhenItsSizeIsTooLarge) {
  const Bytes bytes = Bytes().Zeros(8).U32(100).U32(0x2B464D45).U16(0x4001);
  const DecodedRecord record(DecodeComment, bytes.Data());
  EXPECT_TRUE(record.IsShort());
  EXPECT_EQ(record->kind, EmfCommentKind::kEmfPlus);
  EXPECT_EQ(record->data.Remaining(), 2U);
}

TEST(CommentRecord, IsOfTheKindThatItsFirstNumbersTell) {
  EXPECT_EQ(KindOf(Bytes().U32(0x2B464D45)), EmfCommentKind::kEmfPlus);
  EXPECT_EQ(KindOf(Bytes().U32(kPublic)), EmfCommentKind::kPublic);
  EXPECT_EQ(KindOf(Bytes().U32(0).U32(0x544F4E46)), EmfCommentKind::kSpool);
  EXPECT_EQ(KindOf(Bytes().U32(0).U32(1)), EmfCommentKind::kPrivate);
  EXPECT_EQ(KindOf(Bytes().U32(0)), EmfCommentKind::kPrivate);
  EXPECT_EQ(KindOf(Bytes().U16(0x4D45)), EmfCommentKind::kPrivate);
  EXPECT_EQ(KindOf(Bytes()), EmfCommentKind::kPrivate);
}

/// The data of a public comment, read to behind its type.
ByteView PublicData(const Bytes& bytes) {
  ByteView data(bytes.Data());
  data.Skip(4);
  DecodePublicCommentType(data);
  return data;
}

Bytes Public(PublicCommentType type) {
  return Bytes().U32(kPublic).U32(type);
}

TEST(PublicComment, HasAType) {
  const auto record = Decode(DecodeComment, CommentBody(Public(EMR_COMMENT_ENDGROUP)));
  ByteView data = record->data;
  EXPECT_EQ(DecodePublicCommentType(data), EMR_COMMENT_ENDGROUP);
  EXPECT_EQ(data.Remaining(), 0U);
}

TEST(BeginGroupComment, HasARectangleAndADescription) {
  const Bytes bytes = Public(EMR_COMMENT_BEGINGROUP).Rectangle(1, 2, 3, 4).U32(2).Utf16(u"ab");
  ByteView data = PublicData(bytes);
  const BeginGroupComment comment = DecodeBeginGroup(data);
  EXPECT_EQ(comment.bounds, (RectangleL{1, 2, 3, 4}));
  EXPECT_EQ(Text(comment.description), u"ab");
  EXPECT_FALSE(data.IsShort());
}

TEST(BeginGroupComment, MayHaveHalfOfItsDescription) {
  const Bytes bytes = Public(EMR_COMMENT_BEGINGROUP).Rectangle(1, 2, 3, 4).U32(2).Utf16(u"a");
  ByteView data = PublicData(bytes);
  EXPECT_EQ(Text(DecodeBeginGroup(data).description), u"a");
  EXPECT_FALSE(data.IsShort());
}

/// A comment of one form of the picture, whose data are said to be `size` bytes at 48.
Bytes MultiFormats(std::uint32_t size) {
  return Public(EMR_COMMENT_MULTIFORMATS)
      .Rectangle(1, 2, 3, 4)
      .U32(1)
      .U32(kEmfSignature)
      .U32(7)
      .U32(size)
      .U32(44)
      .Each({5, 6});
}

TEST(MultiFormatsComment, HasFormatsAndTheirData) {
  const Bytes bytes = MultiFormats(2);
  ByteView data = PublicData(bytes);
  const MultiFormatsComment comment = DecodeMultiFormats(data);
  EXPECT_EQ(comment.bounds, (RectangleL{1, 2, 3, 4}));
  ASSERT_EQ(comment.formats.size(), 1U);
  EXPECT_EQ(comment.formats[0], (EmrFormat{kEmfSignature, 7, 2, 44}));
  EXPECT_EQ(BytesOf(comment.DataOf(comment.formats[0])), (Uchars{5, 6}));
}

TEST(MultiFormatsComment, HasNoDataThatReachPastItsEnd) {
  const Bytes bytes = MultiFormats(3);
  ByteView data = PublicData(bytes);
  const MultiFormatsComment comment = DecodeMultiFormats(data);
  EXPECT_TRUE(comment.DataOf(comment.formats[0]).Bytes().empty());
}

TEST(EpsData, HasThreeCornersAndText) {
  const Bytes bytes =
      Bytes().U32(34).U32(1).PointL(16, 32).PointL(48, 64).PointL(80, 96).Each({'%', '!'});
  ByteView data(bytes.Data());
  const EpsData eps = DecodeEpsData(data);
  EXPECT_EQ(eps.sizeData, 34U);
  EXPECT_EQ(eps.version, 1U);
  EXPECT_EQ(eps.corners, (std::array<PointL, 3>{{{16, 32}, {48, 64}, {80, 96}}}));
  EXPECT_EQ(BytesOf(eps.text), (Uchars{'%', '!'}));
  EXPECT_FALSE(data.IsShort());
}

TEST(WindowsMetafileComment, HasAWholeMetafile) {
  const Bytes bytes = Public(EMR_COMMENT_WINDOWS_METAFILE)
                          .U16(0x300)
                          .U16(0)
                          .U32(0x12345678)
                          .U32(0)
                          .U32(3)
                          .Each({1, 2, 3, 0});
  ByteView data = PublicData(bytes);
  const WindowsMetafileComment comment = DecodeWindowsMetafile(data);
  EXPECT_EQ(comment.version, 0x300);
  EXPECT_EQ(comment.checksum, 0x12345678U);
  EXPECT_EQ(BytesOf(comment.metafile), (Uchars{1, 2, 3}));
  EXPECT_FALSE(data.IsShort());
}

}  // namespace
}  // namespace kelvane::test

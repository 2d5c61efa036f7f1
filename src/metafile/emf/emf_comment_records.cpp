#include "metafile/emf/emf_comment_records.h"

namespace kelvane {
inline namespace metafile {
namespace {

constexpr std::uint32_t kEmfPlus = 0x2B464D45;     // "EMF+"
constexpr std::uint32_t kPublic = 0x43494447;      // "GDIC"
constexpr std::uint32_t kSpool = 0;                // private comments may begin like this, too
constexpr std::uint32_t kSpoolFonts = 0x544F4E46;  // "FNOT"

/// @param data  by value: whoever reads on reads the identifier again.
EmfCommentKind KindOf(ByteView data) {
  const auto identifier = data.Read<std::uint32_t>();
  if (data.IsShort()) return EmfCommentKind::kPrivate;
  if (identifier == kEmfPlus) return EmfCommentKind::kEmfPlus;
  if (identifier == kPublic) return EmfCommentKind::kPublic;
  const bool isSpool = identifier == kSpool && data.Read<std::uint32_t>() == kSpoolFonts;
  return isSpool ? EmfCommentKind::kSpool : EmfCommentKind::kPrivate;
}

}  // namespace

CommentRecord DecodeComment(ByteView& bytes) {
  const ByteView data = bytes.Split(bytes.Read<std::uint32_t>());
  CommentRecord record = {KindOf(data), data};
  if (record.kind != EmfCommentKind::kPrivate) record.data.Skip(sizeof(std::uint32_t));
  return record;
}

BeginGroupComment DecodeBeginGroup(ByteView& data) {
  return {data.Read<RectangleL>(), data.ArrayUpTo<char16_t>(data.Read<std::uint32_t>())};
}

MultiFormatsComment DecodeMultiFormats(ByteView& data) {
  return {data.Read<RectangleL>(), data.Array<EmrFormat>(data.Read<std::uint32_t>()), data};
}

ByteView MultiFormatsComment::DataOf(const EmrFormat& format) const {
  ByteView bytes = data;
  return bytes.Holds(format.offData, format.sizeData) ? bytes.Slice(format.offData, format.sizeData)
                                                      : ByteView();
}

EpsData DecodeEpsData(ByteView& data) {
  EpsData eps = {data.Read<std::uint32_t>(),
                 data.Read<std::uint32_t>(),
                 data.Read<std::array<PointL, 3>>(),
                 {}};
  eps.text = data.Split(data.Remaining());
  return eps;
}

WindowsMetafileComment DecodeWindowsMetafile(ByteView& data) {
  WindowsMetafileComment comment;
  comment.version = data.Read<std::uint16_t>();
  data.Skip(sizeof(std::uint16_t));
  comment.checksum = data.Read<std::uint32_t>();
  comment.flags = data.Read<std::uint32_t>();
  comment.metafile = data.Split(data.Read<std::uint32_t>());
  return comment;
}

}  // namespace metafile
}  // namespace kelvane

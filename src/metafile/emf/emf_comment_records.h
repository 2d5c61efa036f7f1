#pragma once

#include <array>
#include <cstdint>
#include <tuple>

#include "metafile/byte_view.h"
#include "metafile/gdi_types.h"

namespace kelvane {
inline namespace metafile {

// Comments ([MS-EMF] 2.3.3): what programs put into a metafile beside its records.

/// Who a comment is for.
enum class EmfCommentKind : std::uint8_t {
  kPrivate,  // the program that wrote it
  kPublic,   // everybody: data for DecodePublicComment
  kEmfPlus,  // a player of EMF+: data are its records
  kSpool     // a printer: data are fonts
};

/// EMR_COMMENT ([MS-EMF] 2.3.3.1). Its size, when too large, counts only as far as the record goes.
struct CommentRecord {
  EmfCommentKind kind{};
  ByteView data;  // from the identifier on, which has been read unless the comment is private
};
/// @param bytes  the record behind type and size.
CommentRecord DecodeComment(ByteView& bytes);

/// What a public comment is ([MS-EMF] 2.1.10); others mean nothing.
enum PublicCommentType : std::uint32_t {
  EMR_COMMENT_BEGINGROUP = 0x00000002,
  EMR_COMMENT_ENDGROUP = 0x00000003,
  EMR_COMMENT_UNICODE_STRING = 0x00000040,  // reserved
  EMR_COMMENT_UNICODE_END = 0x00000080,     // reserved
  EMR_COMMENT_MULTIFORMATS = 0x40000004,
  EMR_COMMENT_WINDOWS_METAFILE = 0x80000001
};
/// @param data  a public comment's. Then the decoder that goes with the type takes the data.
inline PublicCommentType DecodePublicCommentType(ByteView& data) {
  return data.Read<PublicCommentType>();
}

/// EMR_COMMENT_BEGINGROUP ([MS-EMF] 2.3.3.4.1).
struct BeginGroupComment {
  RectangleL bounds;  // of what the group draws, logical units
  ArrayView<char16_t>
      description;  // as much as there is; some comments have half of what they count
};
BeginGroupComment DecodeBeginGroup(ByteView& data);

/// One of the forms in which a multi-format comment has the picture ([MS-EMF] 2.2.4), 16 bytes.
struct EmrFormat {
  std::uint32_t signature = 0;  // kEmfSignature, or one of the two below
  std::uint32_t version = 0;
  std::uint32_t sizeData = 0;
  std::uint32_t offData = 0;  // from the comment's identifier

  constexpr auto Fields() { return std::tie(signature, version, sizeData, offData); }
  friend bool operator==(const EmrFormat&, const EmrFormat&) = default;
};
inline constexpr std::uint32_t kEpsSignature = 0x46535045;  // "EPSF", EpsData
inline constexpr std::uint32_t kPdfSignature = 0x50444620;  // " FDP" in the file, a PDF document

/// EMR_COMMENT_MULTIFORMATS ([MS-EMF] 2.3.3.4.3).
struct MultiFormatsComment {
  RectangleL bounds;  // of the picture, logical units
  ArrayView<EmrFormat> formats;
  ByteView data;  // what the formats' offsets lead into

  /// @return the bytes of a format; nothing when the comment does not hold them.
  [[nodiscard]] ByteView DataOf(const EmrFormat& format) const;
};
MultiFormatsComment DecodeMultiFormats(ByteView& data);

/// A picture in PostScript within a multi-format comment ([MS-EMF] 2.2.6).
struct EpsData {
  std::uint32_t sizeData = 0;
  std::uint32_t version = 0;      // 1
  std::array<PointL, 3> corners;  // upper left, upper right, lower left; 28.4 fixed
  ByteView text;
};
EpsData DecodeEpsData(ByteView& data);

/// EMR_COMMENT_WINDOWS_METAFILE ([MS-EMF] 2.3.3.4.4): the same picture in 16 bits.
struct WindowsMetafileComment {
  std::uint16_t version = 0;   // 0x300
  std::uint32_t checksum = 0;  // makes the sum of all 32-bit words of the file 0
  std::uint32_t flags = 0;
  ByteView metafile;
};
WindowsMetafileComment DecodeWindowsMetafile(ByteView& data);

}  // namespace metafile
}  // namespace kelvane

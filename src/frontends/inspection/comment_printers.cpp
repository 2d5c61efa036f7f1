#include "frontends/inspection/record_printers.h"
#include "metafile/emf/emf_comment_records.h"
#include "metafile/emf/emf_record_type.h"

namespace kelvane {
namespace {

void AddGroup(FieldWriter& fields, ByteView& data) {
  const BeginGroupComment group = DecodeBeginGroup(data);
  fields.Field("Rectangle", group.bounds).Field("Description", UpToNul(group.description));
}

void AddFormats(FieldWriter& fields, ByteView& data) {
  const MultiFormatsComment comment = DecodeMultiFormats(data);
  fields.Field("OutputRect", comment.bounds).Field("aFormats", comment.formats);
}

void AddMetafile(FieldWriter& fields, ByteView& data) {
  const WindowsMetafileComment comment = DecodeWindowsMetafile(data);
  fields.Hexadecimal("Version", comment.version)
      .Hexadecimal("Checksum", comment.checksum)
      .Field("Flags", comment.flags)
      .Field("WinMetafile", comment.metafile);
}

void AddPublicComment(FieldWriter& fields, ByteView& data) {
  const PublicCommentType type = DecodePublicCommentType(data);
  fields.Field("PublicCommentIdentifier", type);
  switch (type) {
    case EMR_COMMENT_BEGINGROUP:
      return AddGroup(fields, data);
    case EMR_COMMENT_MULTIFORMATS:
      return AddFormats(fields, data);
    case EMR_COMMENT_WINDOWS_METAFILE:
      return AddMetafile(fields, data);
    default:
      return;
  }
}

void PrintComment(ByteView& bytes, FieldWriter& fields) {
  CommentRecord record = DecodeComment(bytes);
  fields.Field("DataSize", record.data.Bytes().size());
  switch (record.kind) {
    case EmfCommentKind::kPublic:
      AddPublicComment(fields, record.data);
      if (record.data.IsShort()) bytes.Fail();
      return;
    case EmfCommentKind::kEmfPlus:  // its records have lines of their own
      return;
    case EmfCommentKind::kSpool:
    case EmfCommentKind::kPrivate:
      fields.Field("PrivateData", record.data);
  }
}

constexpr PrinterRow kCommentRows[] = {{EMR_COMMENT, PrintComment}};

}  // namespace

std::span<const PrinterRow> CommentPrinters() {
  return kCommentRows;
}

}  // namespace kelvane

#include "frontends/inspection/metafile_info.h"

#include <algorithm>
#include <set>

#include "metafile/emf/emf_comment_records.h"
#include "metafile/emf/emf_font_records.h"
#include "metafile/emf/emf_record_iterator.h"
#include "metafile/emfplus/emfplus_record.h"

namespace kelvane {
namespace {

/// Gathers what is said of all records.
class Inspector {
 public:
  explicit Inspector(MetafileInfo& info) : info_(info) {}

  void Add(EmfRecord& record) {
    ++info_.records;
    ++(RecordName(record.type).empty() ? info_.unknownRecords : info_.countOf[record.type]);
    if (record.type == EMR_EXTCREATEFONTINDIRECTW) AddFont(record.bytes);
    if (record.type == EMR_COMMENT) AddComment(record.bytes);
  }

 private:
  void AddFont(ByteView& bytes) {
    const auto& name = DecodeExtCreateFontIndirectW(bytes).font.faceName;
    const std::u16string face(name.begin(), std::ranges::find(name, u'\0'));
    if (faces_.insert(face).second) info_.fonts.push_back(face);
  }

  void AddComment(ByteView& bytes) {
    CommentRecord comment = DecodeComment(bytes);
    if (comment.kind != EmfCommentKind::kEmfPlus) return;
    while (const auto record = NextEmfPlusRecord(comment.data)) {
      ++info_.emfPlusRecords;
      ++(EmfPlusRecordName(record->type).empty()
             ? info_.unknownEmfPlusRecords
             : info_.emfPlusCountOf[record->type - std::size_t{kEmfPlusHeader}]);
      if (record->type == kEmfPlusHeader) info_.isDual = (record->flags & kEmfPlusDualFlag) != 0;
    }
  }

  MetafileInfo& info_;
  std::set<std::u16string> faces_;
};

}  // namespace

std::optional<MetafileInfo> Inspect(std::span<const unsigned char> file) {
  const auto header = ReadEmfHeader(file);
  if (!header) return std::nullopt;
  MetafileInfo info;
  info.header = *header;
  info.bytes = file.size();
  Inspector inspector(info);
  EmfRecordIterator records(file);
  while (auto record = records.Next())
    inspector.Add(*record);
  info.end = records.End().value();
  info.endOffset = records.Offset();
  return info;
}

}  // namespace kelvane

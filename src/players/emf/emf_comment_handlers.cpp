#include "metafile/emf/emf_comment_records.h"
#include "metafile/emfplus/emfplus_record.h"
#include "players/emf/emf_handler.h"

namespace kelvane {
namespace {

/// The first record of EMF+ says whether the records of EMF have the same picture.
void PlayEmfPlus(EmfPlayback& p, ByteView data) {
  while (const auto record = NextEmfPlusRecord(data)) {
    if (record->type == kEmfPlusHeader) {
      p.hasEmfHalf = (record->flags & kEmfPlusDualFlag) != 0;
    }
    ++p.emfPlusRecords;
  }
  if (!p.hasEmfHalf) p.LeftOut("its EMF+ records are not played yet");
}

/// Groups and other forms of the picture mark nothing: what is to be seen stands in the records.
void PlayComment(EmfPlayback& p, const CommentRecord& r) {
  switch (r.kind) {
    case EmfCommentKind::kEmfPlus:
      return PlayEmfPlus(p, r.data);
    case EmfCommentKind::kPrivate:
      ++p.privateComments;
      return;
    case EmfCommentKind::kPublic:
    case EmfCommentKind::kSpool:
      return;
  }
}

constexpr EmfHandler kCommentHandlers[] = {
    {EMR_COMMENT, Playing<DecodeComment>([](EmfPlayback& p, const auto& r) { PlayComment(p, r); })},
};

}  // namespace

std::span<const EmfHandler> EmfCommentHandlers() {
  return kCommentHandlers;
}

}  // namespace kelvane

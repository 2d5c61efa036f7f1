#include "metafile/emf/emf_comment_records.h"
#include "players/emf/emf_handler.h"
#include "players/emf/emf_other_forms.h"
#include "players/emfplus/emfplus_player.h"

namespace kelvane {
namespace {

void PlayEmfPlusComment(EmfPlayback& p, ByteView data) {
  if (p.emfPlus == nullptr) return;
  PlayEmfPlus(*p.emfPlus, data);
  p.device.canvas = p.emfPlus->handsOver ? p.canvas : nullptr;
}

/// Groups mark nothing, and neither do other forms of a picture that stands in the records.
void PlayPublicComment(EmfPlayback& p, ByteView data) {
  if (p.otherForms == nullptr || p.otherForms->Play(data)) return;
  p.LeftOut("none of the forms in which it has the picture can be drawn");
}

void PlayComment(EmfPlayback& p, const CommentRecord& r) {
  switch (r.kind) {
    case EmfCommentKind::kEmfPlus:
      return PlayEmfPlusComment(p, r.data);
    case EmfCommentKind::kPrivate:
      ++p.privateComments;
      return;
    case EmfCommentKind::kPublic:
      return PlayPublicComment(p, r.data);
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

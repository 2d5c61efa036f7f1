#include "metafile/emf/emf_comment_records.h"
#include "players/emf/emf_handler.h"

namespace kelvane {
namespace {

/// @return how many records of EMF+ the data of a comment hold ([MS-EMFPLUS] 2.3), going by their
///         sizes.
std::size_t CountEmfPlusRecords(ByteView data) {
  constexpr std::uint32_t kHead = 12;  // bytes of type, flags, size and size of the data
  std::size_t count = 0;
  while (data.Remaining() >= kHead) {
    data.Skip(2 * sizeof(std::uint16_t));
    const auto size = data.Read<std::uint32_t>();
    if (size < kHead || size - 2 * sizeof(std::uint32_t) > data.Remaining()) break;
    data.Skip(size - 2 * sizeof(std::uint32_t));
    ++count;
  }
  return count;
}

/// Groups and other forms of the picture mark nothing: what is to be seen stands in the records.
void PlayComment(EmfPlayback& p, const CommentRecord& r) {
  switch (r.kind) {
    case EmfCommentKind::kEmfPlus:
      p.emfPlusRecords += CountEmfPlusRecords(r.data);
      return;
    case EmfCommentKind::kPrivate:
      ++p.privateComments;
      return;
    case EmfCommentKind::kPublic:
    case EmfCommentKind::kSpool:
      return;
  }
}

constexpr EmfHandler kHandlers[] = {
    {EMR_COMMENT, Playing<DecodeComment>([](EmfPlayback& p, const auto& r) { PlayComment(p, r); })},
};

}  // namespace

std::span<const EmfHandler> EmfCommentHandlers() {
  return kHandlers;
}

}  // namespace kelvane

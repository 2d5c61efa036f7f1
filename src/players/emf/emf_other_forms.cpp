#include "players/emf/emf_other_forms.h"

#include "gdi/exactly.h"
#include "gdi/painting.h"
#include "metafile/emf/emf_record_iterator.h"
#include "metafile/emf/emf_record_type.h"
#include "players/emf/emf_handler.h"
#include "players/emf/emf_player.h"

namespace kelvane {
namespace {

/// EMF+ counts as a mark without a look at its records: no program keeps both it and other forms.
bool IsMark(EmfRecord& record) {
  if (record.type != EMR_COMMENT) return MakesEmfMark(record.type);
  return DecodeComment(record.bytes).kind == EmfCommentKind::kEmfPlus;
}

}  // namespace

bool DrawsByItself(std::span<const unsigned char> file) {
  EmfRecordIterator records(file);
  while (auto record = records.Next()) {
    if (IsMark(*record)) return true;
  }
  return false;
}

EmfOtherForms::EmfOtherForms(const EmfHeader& header, const Stage& stage, DeviceContext& device)
    : stage_(stage), device_(device) {
  if (const auto page = PlaceOnPage(GeometryOf(header), PageChoice::kFrame, {}))
    frame_ = AreaOf(*page);
}

bool EmfOtherForms::Play(ByteView comment) {
  if (isPlayed_) return true;
  switch (DecodePublicCommentType(comment)) {
    case EMR_COMMENT_MULTIFORMATS:
      isPlayed_ = PlayFirst(DecodeMultiFormats(comment));
      return isPlayed_;
    case EMR_COMMENT_WINDOWS_METAFILE: {
      const WindowsMetafileComment form = DecodeWindowsMetafile(comment);
      isPlayed_ = frame_ && PlayOn(*frame_, {}, form.metafile);
      return isPlayed_;
    }
    default:
      return true;
  }
}

bool EmfOtherForms::PlayFirst(const MultiFormatsComment& comment) {
  for (const EmrFormat& format : comment.formats) {
    const bool isMetafile = format.signature == kEmfSignature;
    if (isMetafile &&
        PlayOn(Exactly(comment.bounds), device_.state.mapping.ToDevice(), comment.DataOf(format))) {
      return true;
    }
  }
  return false;
}

bool EmfOtherForms::PlayOn(const RectangleD& box, const TransformD& boxToDevice, ByteView form) {
  if (box.IsEmpty() || device_.canvas == nullptr || !BringClip(device_)) return false;
  const TransformD unitToBox = {box.right - box.left, 0,        0,
                                box.bottom - box.top, box.left, box.top};
  const auto lack =
      stage_.playWithin({form.Bytes(), {}}, unitToBox.Then(boxToDevice), *device_.canvas);
  if (lack) {
    device_.shortfalls.Add(*lack);
    return false;
  }
  stage_.report.Remark("its own records draw nothing: a metafile in its comments is drawn");
  return true;
}

}  // namespace kelvane

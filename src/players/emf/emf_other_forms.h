#pragma once

#include <optional>
#include <span>

#include "gdi/device_context.h"
#include "gdi/geometry.h"
#include "metafile/byte_view.h"
#include "metafile/emf/emf_comment_records.h"
#include "metafile/emf/emf_header.h"
#include "players/stage.h"

namespace kelvane {

/// @return whether any record makes a mark. Where none does, all that there is to be seen is
///         another form of the picture, in a comment.
bool DrawsByItself(std::span<const unsigned char> file);

/// Other forms of a picture, in public comments of a file that does not draw by itself.
class EmfOtherForms {
 public:
  /// @param header  of the file. @param stage, device  borrowed.
  EmfOtherForms(const EmfHeader& header, const Stage& stage, DeviceContext& device);

  /// Plays the first metafile among the forms of all comments that can be played.
  /// @param comment  behind its identifier.
  /// @return false for a comment with forms of which none can.
  bool Play(ByteView comment);

 private:
  bool PlayFirst(const MultiFormatsComment& comment);
  bool PlayOn(const RectangleD& box, const TransformD& boxToDevice, ByteView form);

  const Stage& stage_;
  DeviceContext& device_;
  std::optional<RectangleD> frame_;  // device units
  bool isPlayed_ = false;
};

}  // namespace kelvane

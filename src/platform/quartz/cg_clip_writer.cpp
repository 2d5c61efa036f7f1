#include "platform/quartz/cg_clip_writer.h"

#include <cstddef>

namespace kelvane {

// A clip belongs to one chain of clips only, so two chains are alike up to a clip they share.
void CGClipWriter::Bring(std::span<const CGClip> clips, CGClipOperators& output) {
  while (!written_.empty() && (written_.size() > clips.size() ||
                               written_.back().serial != clips[written_.size() - 1].serial)) {
    if (written_.back().savedBefore) output.WriteRestore();
    written_.pop_back();
  }
  for (std::size_t i = written_.size(); i < clips.size(); ++i) {
    // Clips set under the same saved states go together, so they can share a save.
    const bool savedBefore = i == 0 || clips[i].saveDepth != clips[i - 1].saveDepth;
    if (savedBefore) output.WriteSave();
    output.WriteClip(clips[i]);
    written_.push_back({clips[i].serial, savedBefore});
  }
}

}  // namespace kelvane

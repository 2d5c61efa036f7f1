#include "platform/quartz/cg_state_writer.h"

namespace kelvane {

void CGStateWriter::StartPage() {
  held_ = {};
  saved_.clear();
  writtenClips_.clear();
}

void CGStateWriter::FinishPage() {
  while (!writtenClips_.empty())
    PopClip();
}

void CGStateWriter::Prepare(const CGGraphicsState& state, std::span<const CGClip> clips,
                            CGStateNeeds needs) {
  const auto bring = [](auto& held, const auto& wanted) {
    if (held == wanted) return false;
    held = wanted;
    return true;
  };
  const auto opaque = [](CGColor color) {
    color.alpha = 1;
    return color;
  };
  PrepareClips(clips);
  const bool fillsText = needs.text && Fills(state.textMode);
  const bool strokesText = needs.text && Strokes(state.textMode);
  if ((needs.fill || fillsText) && bring(held_.fillColor, opaque(state.fillColor))) {
    WriteFillColor(held_.fillColor);
  }
  if (needs.stroke || strokesText) {
    if (bring(held_.strokeColor, opaque(state.strokeColor))) {
      WriteStrokeColor(held_.strokeColor);
    }
    const CGFloat width = strokesText ? TextStrokeWidth(state) : StrokeGeometry(state).width;
    if (bring(held_.lineWidth, width)) WriteLineWidth(held_.lineWidth);
    if (bring(held_.miterLimit, state.miterLimit)) WriteMiterLimit(held_.miterLimit);
  }
  if (needs.text && bring(held_.textMode, state.textMode)) WriteTextMode(held_.textMode);
}

// A clip belongs to one chain of clips only, so two chains are alike up to a clip they share.
void CGStateWriter::PrepareClips(std::span<const CGClip> clips) {
  while (!writtenClips_.empty() &&
         (writtenClips_.size() > clips.size() ||
          writtenClips_.back().serial != clips[writtenClips_.size() - 1].serial)) {
    PopClip();
  }
  for (std::size_t i = writtenClips_.size(); i < clips.size(); ++i) {
    // Clips set under the same saved states go together, so they can share a save.
    const bool savedBefore = i == 0 || clips[i].saveDepth != clips[i - 1].saveDepth;
    if (savedBefore) {
      WriteSave();
      saved_.push_back(held_);
    }
    WriteClip(clips[i].area);
    writtenClips_.push_back({clips[i].serial, savedBefore});
  }
}

void CGStateWriter::PopClip() {
  const bool restores = writtenClips_.back().savedBefore;
  writtenClips_.pop_back();
  if (!restores) return;
  WriteRestore();
  held_ = saved_.back();
  saved_.pop_back();
}

}  // namespace kelvane

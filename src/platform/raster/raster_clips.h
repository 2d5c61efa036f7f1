#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

#include "platform/quartz/cg_clip_writer.h"
#include "platform/raster/cairo_library.h"
#include "platform/raster/raster_geometry.h"

namespace kelvane {

/// The clips of a drawing. Cairo goes through a clip's path for each mark; of clips of many parts a
/// mask is made, once.
class RasterClips final : private CGClipOperators {
 public:
  /// @param drawing  borrowed. @param toPixels  from page space.
  RasterClips(cairo_t* drawing, const CGAffineTransform& toPixels, const PixelCount& page)
      : drawing_(drawing), toPixels_(toPixels), page_(page) {}

  void Bring(std::span<const CGClip> clips) { writer_.Bring(clips, *this); }
  void End() { writer_.End(*this); }

  /// @return what marks are to be painted through, besides what Cairo cuts off; null for nothing.
  [[nodiscard]] cairo_pattern_t* Mask();

 private:
  using SharedMask = std::shared_ptr<cairo_pattern_t>;

  /// What there is between a save and the next.
  struct Level {
    std::size_t parts = 0;      // of the clips that Cairo goes through
    std::vector<CGClip> cuts;   // those that are in the mask, and not in the level below
    bool isMasked = false;      // by these, or below
    SharedMask mask = nullptr;  // null also where it was forgotten
  };

  void WriteSave() override;
  void WriteRestore() override;
  void WriteClip(const CGClip& clip) override;
  void Cut(const CGClip& clip) const;
  [[nodiscard]] SharedMask MaskOf(const CGClip& clip, const SharedMask& below) const;
  void MakeMask(std::size_t level);
  void ForgetSome(std::size_t end);

  cairo_t* drawing_;
  CGAffineTransform toPixels_;
  PixelCount page_;
  CGClipWriter writer_;
  std::vector<Level> levels_ = std::vector<Level>(1);
};

}  // namespace kelvane

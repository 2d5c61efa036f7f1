#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

#include "platform/quartz/cg_clip_writer.h"
#include "platform/raster/cairo_library.h"
#include "platform/raster/raster_mesh.h"

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
  [[nodiscard]] cairo_pattern_t* Mask() const { return mask_.get(); }

 private:
  struct Saved {
    std::size_t parts;
    std::shared_ptr<cairo_pattern_t> mask;
  };

  void WriteSave() override;
  void WriteRestore() override;
  void WriteClip(const CGClip& clip) override;
  void Cut(cairo_t* drawing, const CGClip& clip) const;
  [[nodiscard]] std::shared_ptr<cairo_pattern_t> MaskOf(const CGClip& clip) const;

  cairo_t* drawing_;
  CGAffineTransform toPixels_;
  PixelCount page_;
  CGClipWriter writer_;
  std::size_t parts_ = 0;  // of the clips that Cairo goes through
  std::shared_ptr<cairo_pattern_t> mask_;
  std::vector<Saved> saved_;
};

}  // namespace kelvane

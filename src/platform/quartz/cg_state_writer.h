#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/quartz/cg_graphics_state.h"

namespace kelvane {

/// Which values of the graphics state a mark depends on.
struct CGStateNeeds {
  bool fill = false;
  bool stroke = false;
  bool text = false;
};

/// Brings the graphics state of a sequential output to what the next mark needs. An operator is
/// written only when a value differs from what the output already holds, and clips stand between a
/// save and a restore of their own, so a state that was saved and restored without a mark leaves no
/// trace.
class CGStateWriter {
 public:
  CGStateWriter(const CGStateWriter&) = delete;
  CGStateWriter& operator=(const CGStateWriter&) = delete;

 protected:
  CGStateWriter() = default;
  ~CGStateWriter() = default;

  /// The output holds the initial state again: black, width 1, miter limit 10, nothing saved.
  void StartPage();

  /// Writes the restores that are still owed.
  void FinishPage();

  /// @param state  the state the mark is made under. @param clips  the clips in effect, oldest
  /// first.
  void Prepare(const CGGraphicsState& state, std::span<const CGClip> clips, CGStateNeeds needs);

 private:
  // The operators of the output.
  virtual void WriteSave() = 0;
  virtual void WriteRestore() = 0;
  virtual void WriteClip(const CGPath& area) = 0;
  virtual void WriteFillColor(const CGColor& color) = 0;
  virtual void WriteStrokeColor(const CGColor& color) = 0;
  virtual void WriteLineWidth(CGFloat width) = 0;
  virtual void WriteMiterLimit(CGFloat limit) = 0;
  virtual void WriteTextMode(CGTextDrawingMode mode) = 0;

  struct Values {
    CGColor fillColor;
    CGColor strokeColor;
    CGFloat lineWidth = 1;
    CGFloat miterLimit = 10;
    CGTextDrawingMode textMode = kCGTextFill;
  };

  struct WrittenClip {
    std::uint64_t serial;
    bool savedBefore;  // a save stands before it; the clip after it may share that save
  };

  void PrepareClips(std::span<const CGClip> clips);
  void PopClip();

  Values held_;
  std::vector<Values> saved_;
  std::vector<WrittenClip> writtenClips_;
};

}  // namespace kelvane

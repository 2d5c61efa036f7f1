#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "platform/quartz/cg_graphics_state.h"

namespace kelvane {

/// How a sequential output cuts its marks: to a clip, until the restore that belongs to the save
/// before it.
class CGClipOperators {
 public:
  CGClipOperators() = default;
  CGClipOperators(const CGClipOperators&) = delete;
  CGClipOperators& operator=(const CGClipOperators&) = delete;

  virtual void WriteSave() = 0;
  virtual void WriteRestore() = 0;
  virtual void WriteClip(const CGClip& clip) = 0;

 protected:
  ~CGClipOperators() = default;
};

/// Brings the clips of a sequential output to those that the next mark is cut to. They stand
/// between a save and a restore of their own, so a state that was saved and restored without a mark
/// leaves no trace.
class CGClipWriter {
 public:
  /// @param clips  the clips in effect, oldest first.
  void Bring(std::span<const CGClip> clips, CGClipOperators& output);

  /// Writes the restores that are still owed: no clip is in effect then.
  void End(CGClipOperators& output) { Bring({}, output); }

 private:
  struct WrittenClip {
    std::uint64_t serial;
    bool savedBefore;  // a save stands before it; the clip after it may share that save
  };

  std::vector<WrittenClip> written_;
};

}  // namespace kelvane

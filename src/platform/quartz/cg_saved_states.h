#pragma once

#include <cstddef>
#include <deque>

#include "platform/quartz/cg_graphics_state.h"

namespace kelvane {

/// The states that were saved and not brought back yet. A state saved again and again without a
/// change is kept once, so that a file of nothing but saves does not take ten times its size.
class CGSavedStates {
 public:
  void Push(const CGGraphicsState& state) {
    if (states_.empty() || !(states_.back().state == state)) states_.push_back({state, 0});
    ++states_.back().times;
    ++depth_;
  }

  /// @return the state saved last, which is gone then. There must be one.
  CGGraphicsState Pop() {
    --depth_;
    if (--states_.back().times > 0) return states_.back().state;
    const CGGraphicsState state = states_.back().state;
    states_.pop_back();
    return state;
  }

  void Clear() { *this = {}; }

  [[nodiscard]] bool IsEmpty() const { return depth_ == 0; }
  [[nodiscard]] std::size_t Depth() const { return depth_; }

 private:
  struct Entry {
    CGGraphicsState state;
    std::size_t times;  // saved one after the other, at least 1
  };

  std::deque<Entry> states_;
  std::size_t depth_ = 0;
};

}  // namespace kelvane

#pragma once

#include <cstddef>
#include <deque>
#include <utility>

namespace kelvane {

/// The states that were saved and not brought back yet. A state saved again and again without a
/// change is kept once, so that a file of nothing but saves does not take ten times its size.
template <class State>
class SavedStates {
 public:
  void Push(const State& state) {
    if (states_.empty() || !(states_.back().state == state)) states_.push_back({state, 0});
    ++states_.back().times;
    ++depth_;
  }

  /// @return the state saved last, which is gone then. There must be one.
  State Pop() { return PopTo(depth_ - 1); }

  /// @param depth  below Depth(). @return the state that was saved at that depth; it is gone then,
  ///               and so are those saved after it.
  State PopTo(std::size_t depth) {
    while (depth_ - states_.back().times > depth) {
      depth_ -= states_.back().times;
      states_.pop_back();
    }
    Entry& entry = states_.back();
    entry.times -= depth_ - depth;
    depth_ = depth;
    if (entry.times > 0) return entry.state;
    State state = std::move(entry.state);
    states_.pop_back();
    return state;
  }

  void Clear() { *this = {}; }

  [[nodiscard]] bool IsEmpty() const { return depth_ == 0; }
  [[nodiscard]] std::size_t Depth() const { return depth_; }

 private:
  struct Entry {
    State state;
    std::size_t times;  // saved one after the other, at least 1
  };

  std::deque<Entry> states_;
  std::size_t depth_ = 0;
};

}  // namespace kelvane

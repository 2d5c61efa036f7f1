#include "gdiplus/labelled_states.h"

namespace kelvane::gdiplus {

void LabelledStates::Save(std::uint32_t label, const GraphicsState& state) {
  std::size_t& newest = newest_[label];
  states_.Push(state);
  labels_.push_back({label, newest});
  newest = labels_.size();
}

std::optional<GraphicsState> LabelledStates::Restore(std::uint32_t label) {
  const auto found = newest_.find(label);
  if (found == newest_.end()) return std::nullopt;
  const std::size_t depth = found->second - 1;
  while (labels_.size() > depth) {
    const Label& dropped = labels_.back();
    if (dropped.older == 0) {
      newest_.erase(dropped.value);
    } else {
      newest_[dropped.value] = dropped.older;
    }
    labels_.pop_back();
  }
  return states_.PopTo(depth);
}

}  // namespace kelvane::gdiplus

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

#include "base/saved_states.h"
#include "gdiplus/graphics_state.h"

namespace kelvane::gdiplus {

/// States kept by Save and by containers, under labels that the file chose. A label may be there
/// more than once. One that is not there is found out at once, however many are.
class LabelledStates {
 public:
  void Save(std::uint32_t label, const GraphicsState& state);

  /// Drops the newest state of a label and all that were saved since.
  /// @return that state; nullopt, and drops nothing, when there is none.
  std::optional<GraphicsState> Restore(std::uint32_t label);

  [[nodiscard]] std::size_t Count() const { return labels_.size(); }

 private:
  struct Label {
    std::uint32_t value;
    std::size_t older;  // how many there were up to the one before of the same value; 0 for none
  };

  SavedStates<GraphicsState> states_;
  std::vector<Label> labels_;                              // of each state, outermost first
  std::unordered_map<std::uint32_t, std::size_t> newest_;  // how many there are up to it
};

}  // namespace kelvane::gdiplus

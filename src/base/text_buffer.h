#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace kelvane {

/// Text that grows at its end and is written in place: most of a document's bytes pass through
/// here, a few at a time.
class TextBuffer {
 public:
  /// @return where the text goes on, with room for `size` characters. What is written there counts
  ///         once EndAt is told where it ends; until then the room stays the same.
  [[nodiscard]] char* Room(std::size_t size) {
    if (text_.size() - length_ < size) text_.resize(std::max(length_ + size, text_.size() * 2));
    return text_.data() + length_;
  }
  void EndAt(const char* end) { length_ = static_cast<std::size_t>(end - text_.data()); }

  void Append(std::string_view text) {
    EndAt(std::copy(text.begin(), text.end(), Room(text.size())));
  }

  /// Empties the text and keeps its memory.
  void Clear() { length_ = 0; }

  [[nodiscard]] bool IsEmpty() const { return length_ == 0; }
  [[nodiscard]] std::string_view View() const { return {text_.data(), length_}; }

 private:
  std::string text_;  // the room; only the first `length_` characters count
  std::size_t length_ = 0;
};

}  // namespace kelvane

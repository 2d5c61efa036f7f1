#pragma once

#include <cstdint>

namespace kelvane {

/// How many steps the operations on areas may still take. Two areas can cross in a grid, so that
/// the result has as many parts as the product of theirs: a small file could ask for any amount of
/// time and memory. An operation that would need more gives nothing and leaves the rest to its
/// caller.
class Steps {
 public:
  explicit constexpr Steps(std::uint64_t count) : left_(count) {}

  /// @return false, and takes none, when fewer than `count` are left.
  [[nodiscard]] constexpr bool Take(std::uint64_t count) {
    if (count > left_) return false;
    left_ -= count;
    return true;
  }

  constexpr void Add(std::uint64_t count) { left_ += count; }

  [[nodiscard]] constexpr std::uint64_t Left() const { return left_; }

 private:
  std::uint64_t left_;
};

}  // namespace kelvane

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace kelvane {

/// What inflating came to.
enum class InflateEnd : std::uint8_t {
  kWhole,
  kDamaged,   // the data are none of gzip, end early, or do not fit their checksum
  kTooLarge,  // they are more than was allowed
};

struct InflatedBytes {
  InflateEnd end = InflateEnd::kDamaged;
  std::vector<unsigned char> bytes;  // empty unless kWhole
};

/// @return whether bytes begin as gzip data do (RFC 1952).
bool IsGzip(std::span<const unsigned char> bytes);

/// Inflates gzip data, all of their members. What follows the last one is passed over. What the
/// data say of their size is not believed: memory is taken as they grow, at most twice what they
/// need.
/// @param most  bytes that they may come to. Throws std::bad_alloc.
InflatedBytes InflateGzip(std::span<const unsigned char> data, std::size_t most);

}  // namespace kelvane

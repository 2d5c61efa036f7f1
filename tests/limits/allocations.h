#pragma once

#include <cstddef>
#include <cstdint>

namespace kelvane::test {

// The memory of this process as malloc, its kin and operator new hand it out, to libraries too. A
// program that has these functions linked in counts from its start; sanitizers do not allow it.

/// @return bytes in use now, and the most that were in use since the last call of StartPeak.
std::size_t LiveBytes();
std::size_t PeakBytes();
void StartPeak();

/// Kinds of requests that can be made to fail.
enum class Request : std::uint8_t {
  kOwnNew,  // operator new, which throws, called by our library and not by one that it calls
  kNew,     // the same, called by anybody
  kMalloc,  // all others, which return null, called by anybody
};

/// For as long as it lives one request of this thread fails: the one after `count` others.
class FailingRequest {
 public:
  FailingRequest(Request kind, std::uint64_t count);
  FailingRequest(const FailingRequest&) = delete;
  FailingRequest& operator=(const FailingRequest&) = delete;
  ~FailingRequest();

  /// @return whether the request has been made.
  [[nodiscard]] bool HasFailed() const;
};

}  // namespace kelvane::test

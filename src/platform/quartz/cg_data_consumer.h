#pragma once

#include <cstddef>
#include <span>

#include "platform/corefoundation/cf_base.h"
#include "platform/corefoundation/cf_data.h"

namespace kelvane {

/// Where a document is written. What was written counts only once it is committed: a consumer that
/// goes before that leaves its data object or file as it found it, so nobody ever sees half a
/// document.
class CGDataConsumer : public CFObject {
 public:
  /// Throws std::bad_alloc or std::system_error; the document is then abandoned.
  virtual void Write(std::span<const unsigned char> bytes) = 0;

  /// Says about how many bytes will be written, so that room can be made for them at once. Throws
  /// std::bad_alloc.
  virtual void Expect(std::size_t /*count*/) {}

  /// Makes what was written count. Called once, and nothing is written afterwards. Throws
  /// std::system_error.
  virtual void Commit() = 0;
};

using CGDataConsumerRef = CGDataConsumer*;

/// @return a consumer that appends to `data`, owned by the caller; null for null. Throws
/// std::bad_alloc.
CGDataConsumerRef CGDataConsumerCreateWithCFData(CFMutableDataRef data);

}  // namespace kelvane

#pragma once

#include <cstddef>
#include <span>

#include "platform/corefoundation/cf_data.h"

namespace kelvane {

/// Bytes that an image or a document is read from: shared from a data object, or lent by the
/// caller.
class CGDataProvider final : public CFObject {
 public:
  using ReleaseCallback = void (*)(void* info, const void* data, std::size_t size);

  explicit CGDataProvider(CFDataRef data) : data_(CFShare(data)) {}
  CGDataProvider(void* info, std::span<const unsigned char> bytes, ReleaseCallback release)
      : info_(info), lent_(bytes), release_(release) {}

  /// The bytes; valid while the provider lives and a shared data object does not change.
  [[nodiscard]] std::span<const unsigned char> Bytes() const {
    return data_ ? std::span<const unsigned char>(data_->bytes) : lent_;
  }

 private:
  ~CGDataProvider() override {
    if (release_ != nullptr) release_(info_, lent_.data(), lent_.size());
  }

  CFOwned<const CFData> data_;
  void* info_ = nullptr;
  std::span<const unsigned char> lent_;
  ReleaseCallback release_ = nullptr;
};

using CGDataProviderRef = const CGDataProvider*;

/// @return a provider that shares `data`, owned by the caller; null for null. Throws
///         std::bad_alloc.
CGDataProviderRef CGDataProviderCreateWithCFData(CFDataRef data);

/// @param data     lent until the provider goes; then `release`, unless null, is told.
/// @return a provider owned by the caller. Throws std::bad_alloc.
CGDataProviderRef CGDataProviderCreateWithData(void* info, const void* data, std::size_t size,
                                               CGDataProvider::ReleaseCallback release);

}  // namespace kelvane

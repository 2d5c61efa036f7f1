#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <utility>
#include <variant>
#include <vector>

#include "platform/corefoundation/cf_data.h"

namespace kelvane {

/// Makes bytes anew at each call; it may throw.
using CGMakeBytes = std::function<std::vector<unsigned char>()>;

/// What a provider gave: a view of bytes that stay where they are, or bytes that were made for this
/// and go with it.
class CGProvidedBytes {
 public:
  explicit CGProvidedBytes(std::span<const unsigned char> there) : bytes_(there) {}
  explicit CGProvidedBytes(std::vector<unsigned char> made) : bytes_(std::move(made)) {}

  /// Valid while this object lives.
  [[nodiscard]] std::span<const unsigned char> View() const {
    return std::visit([](const auto& bytes) { return std::span<const unsigned char>(bytes); },
                      bytes_);
  }

 private:
  std::variant<std::span<const unsigned char>, std::vector<unsigned char>> bytes_;
};

/// Bytes that an image or a document is read from: shared from a data object, lent by the caller,
/// or made when they are asked for.
class CGDataProvider final : public CFObject {
 public:
  using ReleaseCallback = void (*)(void* info, const void* data, std::size_t size);

  explicit CGDataProvider(CFDataRef data) : data_(CFShare(data)) {}
  CGDataProvider(void* info, std::span<const unsigned char> bytes, ReleaseCallback release)
      : info_(info), lent_(bytes), release_(release) {}

  explicit CGDataProvider(CGMakeBytes make) : make_(std::move(make)) {}

  /// True for bytes that are made each time: how many is known only then.
  [[nodiscard]] bool MakesBytes() const { return make_ != nullptr; }

  /// @return the bytes, made now where they are not there yet; the view is valid while the provider
  ///         lives and a shared data object does not change. Throws what making them throws.
  [[nodiscard]] CGProvidedBytes Provide() const {
    return make_ ? CGProvidedBytes(make_()) : CGProvidedBytes(Bytes());
  }

  /// The bytes that are there, none where they are made; valid while the provider lives and a
  /// shared data object does not change.
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
  CGMakeBytes make_;
};

using CGDataProviderRef = const CGDataProvider*;

/// @return a provider that shares `data`, owned by the caller; null for null. Throws
///         std::bad_alloc.
CGDataProviderRef CGDataProviderCreateWithCFData(CFDataRef data);

/// @param data     lent until the provider goes; then `release`, unless null, is told.
/// @return a provider owned by the caller. Throws std::bad_alloc.
CGDataProviderRef CGDataProviderCreateWithData(void* info, const void* data, std::size_t size,
                                               CGDataProvider::ReleaseCallback release);

/// Bytes that take memory only while they are used.
/// @param make  called each time they are asked for; equal bytes each time.
/// @return a provider owned by the caller; null for an empty function. Throws std::bad_alloc.
CGDataProviderRef CGDataProviderCreateMaking(CGMakeBytes make);

}  // namespace kelvane

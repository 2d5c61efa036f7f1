#pragma once

#include <atomic>
#include <cstddef>
#include <memory>

namespace kelvane {

/// Base of every platform object: counted references, created with one that belongs to the creator.
/// Counting is safe across threads; what an object holds is not, unless its class says so.
class CFObject {
 public:
  CFObject(const CFObject&) = delete;
  CFObject& operator=(const CFObject&) = delete;

  void Retain() const noexcept { references_.fetch_add(1, std::memory_order_relaxed); }

  /// Gives one reference back; the last one destroys the object.
  void Release() const noexcept {
    if (references_.fetch_sub(1, std::memory_order_acq_rel) == 1) delete this;
  }

 protected:
  CFObject() = default;
  virtual ~CFObject() = default;

 private:
  mutable std::atomic<std::size_t> references_{1};
};

using CFTypeRef = const CFObject*;

/// Count, length or index; signed, as on the platform.
using CFIndex = long;

/// Only the default allocator exists: a null pointer.
class CFAllocator;
using CFAllocatorRef = const CFAllocator*;
inline constexpr CFAllocatorRef kCFAllocatorDefault = nullptr;

/// Takes one more reference.
/// @param object  may be null.
/// @return the object.
inline CFTypeRef CFRetain(CFTypeRef object) noexcept {
  if (object != nullptr) object->Retain();
  return object;
}

/// Gives one reference back.
/// @param object  may be null.
inline void CFRelease(CFTypeRef object) noexcept {
  if (object != nullptr) object->Release();
}

struct CFReleaser {
  void operator()(CFTypeRef object) const noexcept { CFRelease(object); }
};

/// One reference, owned: what every Create call returns belongs in one of these.
template <class T>
using CFOwned = std::unique_ptr<T, CFReleaser>;

/// Shares an object: takes a reference of its own.
/// @param object  may be null.
template <class T>
[[nodiscard]] CFOwned<T> CFShare(T* object) noexcept {
  CFRetain(object);
  return CFOwned<T>(object);
}

}  // namespace kelvane

#include "limits/allocations.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <new>

#include <malloc.h>

// The allocator under the names that the C library keeps for those who stand in front of it.
extern "C" {
void* __libc_malloc(std::size_t size);                           // NOLINT
void* __libc_calloc(std::size_t count, std::size_t size);        // NOLINT
void* __libc_realloc(void* memory, std::size_t size);            // NOLINT
void* __libc_memalign(std::size_t alignment, std::size_t size);  // NOLINT
void __libc_free(void* memory);                                  // NOLINT
}

namespace kelvane::test {
namespace {

std::atomic<std::size_t> liveBytes = 0;
std::atomic<std::size_t> peakBytes = 0;

struct Failure {
  bool isArmed = false;
  bool hasFailed = false;
  Request kind = Request::kNew;
  std::uint64_t before = 0;  // requests that still succeed
};

thread_local Failure failure;

bool Fails(Request kind) {
  if (!failure.isArmed || failure.kind != kind || failure.hasFailed) return false;
  if (failure.before-- > 0) return false;
  failure.hasFailed = true;
  return true;
}

void* Counted(void* memory) {
  if (memory == nullptr) return nullptr;
  const std::size_t live = liveBytes += malloc_usable_size(memory);
  std::size_t peak = peakBytes;
  while (live > peak && !peakBytes.compare_exchange_weak(peak, live)) {
  }
  return memory;
}

void Uncount(void* memory) {
  if (memory != nullptr) liveBytes -= malloc_usable_size(memory);
}

void* NoMemory() {
  errno = ENOMEM;
  return nullptr;
}

void* New(std::size_t size, std::size_t alignment) {
  void* const memory = Fails(Request::kNew)
                           ? nullptr
                           : Counted(__libc_memalign(alignment, std::max<std::size_t>(size, 1)));
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void Free(void* memory) {
  Uncount(memory);
  __libc_free(memory);
}

}  // namespace

std::size_t LiveBytes() {
  return liveBytes;
}

std::size_t PeakBytes() {
  return peakBytes;
}

void StartPeak() {
  peakBytes = liveBytes.load();
}

FailingRequest::FailingRequest(Request kind, std::uint64_t count) {
  failure = {true, false, kind, count};
}

FailingRequest::~FailingRequest() {
  failure = {};
}

bool FailingRequest::HasFailed() const {
  return failure.hasFailed;
}

}  // namespace kelvane::test

#pragma GCC visibility push(default)
extern "C" {

void* malloc(std::size_t size) {
  using namespace kelvane::test;
  return Fails(Request::kMalloc) ? NoMemory() : Counted(__libc_malloc(size));
}

void* calloc(std::size_t count, std::size_t size) {
  using namespace kelvane::test;
  return Fails(Request::kMalloc) ? NoMemory() : Counted(__libc_calloc(count, size));
}

void* realloc(void* memory, std::size_t size) {
  using namespace kelvane::test;
  if (Fails(Request::kMalloc)) return NoMemory();
  const std::size_t before = memory != nullptr ? malloc_usable_size(memory) : 0;
  void* const moved = __libc_realloc(memory, size);
  if (moved == nullptr && size != 0) return nullptr;
  liveBytes -= before;
  return Counted(moved);
}

void* memalign(std::size_t alignment, std::size_t size) {
  using namespace kelvane::test;
  return Fails(Request::kMalloc) ? NoMemory() : Counted(__libc_memalign(alignment, size));
}

void* aligned_alloc(std::size_t alignment, std::size_t size) {
  return memalign(alignment, size);
}

int posix_memalign(void** memory, std::size_t alignment, std::size_t size) {
  *memory = memalign(alignment, size);
  return *memory != nullptr ? 0 : ENOMEM;
}

void free(void* memory) {
  kelvane::test::Free(memory);
}

}  // extern "C"

void* operator new(std::size_t size) {
  return kelvane::test::New(size, alignof(std::max_align_t));
}
void* operator new[](std::size_t size) {
  return operator new(size);
}
void* operator new(std::size_t size, std::align_val_t alignment) {
  return kelvane::test::New(size, static_cast<std::size_t>(alignment));
}
void operator delete(void* memory) noexcept {
  kelvane::test::Free(memory);
}
void operator delete[](void* memory) noexcept {
  kelvane::test::Free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  kelvane::test::Free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
  kelvane::test::Free(memory);
}
void operator delete(void* memory, std::align_val_t) noexcept {
  kelvane::test::Free(memory);
}
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept {
  kelvane::test::Free(memory);
}
#pragma GCC visibility pop

#include "limits/allocations.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <span>
#include <string_view>

#include <execinfo.h>
#include <link.h>
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
  bool isDeciding = false;
  Request kind = Request::kNew;
  std::uint64_t before = 0;  // requests that still succeed
};

thread_local Failure failure;

/// The code of one shared library.
struct CodeRange {
  std::string_view name;
  std::uintptr_t start = 0;
  std::uintptr_t end = 0;

  [[nodiscard]] bool Contains(const void* address) const {
    const auto place = reinterpret_cast<std::uintptr_t>(address);
    return start <= place && place < end;
  }
};

int FindCode(dl_phdr_info* object, std::size_t /*size*/, void* found) {
  auto& range = *static_cast<CodeRange*>(found);
  if (std::string_view(object->dlpi_name).find(range.name) == std::string_view::npos) return 0;
  const std::span segments(object->dlpi_phdr, object->dlpi_phnum);
  for (const auto& segment : segments) {
    if (segment.p_type != PT_LOAD || (segment.p_flags & PF_X) == 0) continue;
    range.start = object->dlpi_addr + segment.p_vaddr;
    range.end = range.start + segment.p_memsz;
  }
  return 1;
}

CodeRange CodeOf(std::string_view name) {
  CodeRange range = {name};
  dl_iterate_phdr(FindCode, &range);
  return range;
}

/// @return whether our library made the request, be it through the standard library.
bool IsOwn(const void* caller) {
  static const CodeRange kOurs = CodeOf("libkelvane.so");
  static const CodeRange kTheirs = CodeOf("libqpdf.so");
  if (kOurs.Contains(caller) || kTheirs.Contains(caller)) return kOurs.Contains(caller);
  std::array<void*, 24> frames{};
  const auto count = static_cast<std::size_t>(backtrace(frames.data(), frames.size()));
  for (const void* frame : std::span(frames).first(count)) {
    if (kOurs.Contains(frame) || kTheirs.Contains(frame)) return kOurs.Contains(frame);
  }
  return false;
}

/// @param caller  where the request returns to.
bool Fails(Request kind, const void* caller) {
  if (!failure.isArmed || failure.hasFailed || failure.isDeciding) return false;
  failure.isDeciding = true;  // which may itself need memory
  const bool isMeant = failure.kind == kind ||
                       (failure.kind == Request::kOwnNew && kind == Request::kNew && IsOwn(caller));
  failure.isDeciding = false;
  if (!isMeant) return false;
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

void* New(std::size_t size, std::size_t alignment, const void* caller) {
  if (Fails(Request::kNew, caller)) throw std::bad_alloc();
  void* const memory = Counted(__libc_memalign(alignment, std::max<std::size_t>(size, 1)));
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
  failure = {.isArmed = true, .kind = kind, .before = count};
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
  return Fails(Request::kMalloc, nullptr) ? NoMemory() : Counted(__libc_malloc(size));
}

void* calloc(std::size_t count, std::size_t size) {
  using namespace kelvane::test;
  return Fails(Request::kMalloc, nullptr) ? NoMemory() : Counted(__libc_calloc(count, size));
}

void* realloc(void* memory, std::size_t size) {
  using namespace kelvane::test;
  if (Fails(Request::kMalloc, nullptr)) return NoMemory();
  const std::size_t before = memory != nullptr ? malloc_usable_size(memory) : 0;
  void* const moved = __libc_realloc(memory, size);
  if (moved == nullptr && size != 0) return nullptr;
  liveBytes -= before;
  return Counted(moved);
}

void* memalign(std::size_t alignment, std::size_t size) {
  using namespace kelvane::test;
  return Fails(Request::kMalloc, nullptr) ? NoMemory() : Counted(__libc_memalign(alignment, size));
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
  return kelvane::test::New(size, alignof(std::max_align_t), __builtin_return_address(0));
}
void* operator new[](std::size_t size) {
  return kelvane::test::New(size, alignof(std::max_align_t), __builtin_return_address(0));
}
void* operator new(std::size_t size, std::align_val_t alignment) {
  return kelvane::test::New(size, static_cast<std::size_t>(alignment), __builtin_return_address(0));
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

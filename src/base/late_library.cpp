#include "base/late_library.h"

#include <stdexcept>
#include <string>

#include <dlfcn.h>

namespace kelvane {
namespace {

[[noreturn]] void Fail() {
  const char* const why = dlerror();
  throw std::runtime_error(why != nullptr ? why : "a library cannot be loaded");
}

}  // namespace

// Threads that come at once get the same handle: the loader counts them.
void* LateLibrary::Load() {
  void* handle = handle_.load(std::memory_order_acquire);
  if (handle != nullptr) return handle;
  handle = dlopen(file_, RTLD_LAZY | RTLD_LOCAL);
  handle_.store(handle, std::memory_order_release);
  return handle;
}

void* LateLibrary::Find(const char* function) {
  void* const handle = Load();
  void* const found = handle != nullptr ? dlsym(handle, function) : nullptr;
  if (found == nullptr) Fail();
  return found;
}

}  // namespace kelvane

#include "base/loaded_functions.h"

#include <dlfcn.h>

namespace kelvane {

LoadedFunctions::LoadedFunctions(const char* library)
    : library_(dlopen(library, RTLD_NOW | RTLD_LOCAL)) {}

void* LoadedFunctions::Find(const char* name) const {
  return library_ != nullptr ? dlsym(library_, name) : nullptr;
}

}  // namespace kelvane

#include <new>
#include <string>

#include <kelvane/kelvane.h>

#include "classic/text/font_selection.h"
#include "frontends/conversion.h"
#include "platform/corefoundation/cf_data.h"

// The C interface: the platform's objects under opaque names, and no exception beyond this file.

namespace {

kelvane::CFMutableDataRef Native(CFMutableDataRef data) {
  return reinterpret_cast<kelvane::CFMutableDataRef>(data);
}

kelvane::CFDataRef Native(CFDataRef data) {
  return reinterpret_cast<kelvane::CFDataRef>(data);
}

// Only data objects cross the interface.
kelvane::CFTypeRef NativeObject(CFTypeRef object) {
  return static_cast<kelvane::CFDataRef>(object);
}

/// @return 0 when `convert` returned, -1 when anything was thrown.
template <class Conversion>
int Status(const Conversion& convert) {
  try {
    convert();
    return 0;
  } catch (...) {
    return -1;
  }
}

}  // namespace

CFMutableDataRef CFDataCreateMutable(CFAllocatorRef /*allocator*/, CFIndex capacity) {
  try {
    return reinterpret_cast<CFMutableDataRef>(
        kelvane::CFDataCreateMutable(kelvane::kCFAllocatorDefault, capacity));
  } catch (...) {
    return nullptr;
  }
}

CFIndex CFDataGetLength(CFDataRef data) {
  return kelvane::CFDataGetLength(Native(data));
}

const unsigned char* CFDataGetBytePtr(CFDataRef data) {
  return kelvane::CFDataGetBytePtr(Native(data));
}

CFTypeRef CFRetain(CFTypeRef object) {
  kelvane::CFRetain(NativeObject(object));
  return object;
}

void CFRelease(CFTypeRef object) {
  kelvane::CFRelease(NativeObject(object));
}

int KELVANE(const unsigned char* buffer, unsigned long length, CFMutableDataRef output) {
  return Status([&] { kelvane::ConvertBuffer(buffer, length, Native(output)); });
}

int ReadFromFile(const char* path) {
  return Status([&] { kelvane::ConvertFile(path); });
}

unsigned long ConvertFontToPostScript(const unsigned short* faceName, unsigned long length,
                                      char* name, unsigned long size) {
  try {
    const std::string whole =
        kelvane::ConvertFontToPostScript(std::u16string(faceName, faceName + length));
    if (size > 0) name[whole.copy(name, size - 1)] = '\0';
    return whole.size();
  } catch (...) {
    return 0;
  }
}

#include "platform/corefoundation/cf_url.h"

#include <gtest/gtest.h>

namespace kelvane {
namespace {

CFOwned<const CFURL> UrlOf(const char* path) {
  const CFOwned<const CFString> string(
      CFStringCreateWithCString(kCFAllocatorDefault, path, kCFStringEncodingMacRoman));
  return CFOwned<const CFURL>(CFURLCreateWithFileSystemPath(kCFAllocatorDefault, string.get(),
                                                            kCFURLPOSIXPathStyle, false));
}

TEST(CFURL, IsNullForANullPath) {
  EXPECT_EQ(UrlOf(nullptr), nullptr);
}

TEST(CFURL, IsNullForAnEmptyPath) {
  EXPECT_EQ(UrlOf(""), nullptr);
}

TEST(CFURL, KeepsThePathByteForByte) {
  for (const char* path : {"a.pdf", "/x/./y//z", "caf\xC3\xA9.pdf", "\xFF\xFE", "100%25 #?.pdf"}) {
    EXPECT_EQ(UrlOf(path)->path, path);
  }
}

}  // namespace
}  // namespace kelvane

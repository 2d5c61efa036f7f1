#include "platform/corefoundation/cf_string.h"

#include <gtest/gtest.h>

namespace kelvane {
namespace {

TEST(CFString, IsNullForANullText) {
  EXPECT_EQ(CFStringCreateWithCString(kCFAllocatorDefault, nullptr, kCFStringEncodingMacRoman),
            nullptr);
}

TEST(CFString, CopiesItsText) {
  std::string text = "abc";
  const CFOwned<const CFString> string(
      CFStringCreateWithCString(kCFAllocatorDefault, text.c_str(), kCFStringEncodingMacRoman));
  text = "xyz";
  EXPECT_EQ(string->bytes, "abc");
}

TEST(CFString, KeepsBytesAsTheyAreWhateverTheEncoding) {
  const char* const text = "\xC3\xA9\xFF\x01";  // not even UTF-8
  const CFOwned<const CFString> string(
      CFStringCreateWithCString(kCFAllocatorDefault, text, kCFStringEncodingMacRoman));
  EXPECT_EQ(string->bytes, text);
  EXPECT_EQ(string->encoding, kCFStringEncodingMacRoman);
}

}  // namespace
}  // namespace kelvane

#include "base/base64.h"

#include <string_view>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

std::string Base64(std::string_view bytes) {
  std::string text;
  AppendBase64(text, {reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()});
  return text;
}

// RFC 4648, 10.
TEST(Base64, FillsItsLastGroup) {
  EXPECT_EQ(Base64(""), "");
  EXPECT_EQ(Base64("f"), "Zg==");
  EXPECT_EQ(Base64("fo"), "Zm8=");
  EXPECT_EQ(Base64("foo"), "Zm9v");
  EXPECT_EQ(Base64("foob"), "Zm9vYg==");
  EXPECT_EQ(Base64("fooba"), "Zm9vYmE=");
  EXPECT_EQ(Base64("foobar"), "Zm9vYmFy");
}

TEST(Base64, HasADigitForAllBits) {
  EXPECT_EQ(Base64("\xFB\xFF\xBF"), "+/+/");
}

TEST(Base64, GoesBehindWhatIsThere) {
  std::string text = "data:";
  AppendBase64(text, {});
  EXPECT_EQ(text, "data:");
}

}  // namespace
}  // namespace kelvane

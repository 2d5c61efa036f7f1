#include "base/text_buffer.h"

#include <string>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

TEST(TextBuffer, StartsEmpty) {
  const TextBuffer buffer;
  EXPECT_TRUE(buffer.IsEmpty());
  EXPECT_EQ(buffer.View(), "");
}

TEST(TextBuffer, CountsOnlyWhatWasWrittenIntoItsRoom) {
  TextBuffer buffer;
  char* out = buffer.Room(100);
  *out++ = 'a';
  *out++ = 'b';
  EXPECT_TRUE(buffer.IsEmpty());
  buffer.EndAt(out);
  EXPECT_EQ(buffer.View(), "ab");
}

TEST(TextBuffer, KeepsItsTextWhileItGrows) {
  TextBuffer buffer;
  std::string expected;
  for (int i = 0; i < 10000; ++i) {
    const std::string piece = std::to_string(i);
    buffer.Append(piece);
    expected += piece;
  }
  EXPECT_EQ(buffer.View(), expected);
}

TEST(TextBuffer, StartsOverOnceItIsCleared) {
  TextBuffer buffer;
  buffer.Append("before");
  buffer.Clear();
  EXPECT_TRUE(buffer.IsEmpty());
  buffer.Append("now");
  EXPECT_EQ(buffer.View(), "now");
}

}  // namespace
}  // namespace kelvane

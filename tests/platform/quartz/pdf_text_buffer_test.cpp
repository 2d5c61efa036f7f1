#include "platform/quartz/pdf_text_buffer.h"

#include <string>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

TEST(PdfTextBuffer, StartsEmpty) {
  const PdfTextBuffer buffer;
  EXPECT_TRUE(buffer.IsEmpty());
  EXPECT_EQ(buffer.View(), "");
}

TEST(PdfTextBuffer, CountsOnlyWhatWasWrittenIntoItsRoom) {
  PdfTextBuffer buffer;
  char* out = buffer.Room(100);
  *out++ = 'a';
  *out++ = 'b';
  EXPECT_TRUE(buffer.IsEmpty());
  buffer.EndAt(out);
  EXPECT_EQ(buffer.View(), "ab");
}

TEST(PdfTextBuffer, KeepsItsTextWhileItGrows) {
  PdfTextBuffer buffer;
  std::string expected;
  for (int i = 0; i < 10000; ++i) {
    const std::string piece = std::to_string(i);
    buffer.Append(piece);
    expected += piece;
  }
  EXPECT_EQ(buffer.View(), expected);
}

TEST(PdfTextBuffer, StartsOverOnceItIsCleared) {
  PdfTextBuffer buffer;
  buffer.Append("before");
  buffer.Clear();
  EXPECT_TRUE(buffer.IsEmpty());
  buffer.Append("now");
  EXPECT_EQ(buffer.View(), "now");
}

}  // namespace
}  // namespace kelvane

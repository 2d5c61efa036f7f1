#include "platform/quartz/pdf_content.h"

#include <gtest/gtest.h>

namespace kelvane {
namespace {

std::string ContentOf(const CGPath& path, const CGAffineTransform& transform) {
  std::string text;
  PdfContent content([&](std::string_view piece) { text += piece; });
  content.Path(path, transform);
  content.Finish();
  return text;
}

TEST(PdfContent, MapsARectangleByItsCorners) {
  CGPath path;
  path.AddRectangle({10, 20}, {30, 40});
  EXPECT_EQ(ContentOf(path, CGAffineTransformMake(0, 2, -1, 0, 5, 0)),
            "-15 20 m\n-15 80 l\n-55 80 l\n-55 20 l\nh\n");
}

}  // namespace
}  // namespace kelvane

// Pictures of pixels, as the tool makes them.

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/bitmap.h"
#include "support/kelvane_tool.h"
#include "support/metafile.h"
#include "support/paths.h"
#include "support/process.h"

namespace kelvane::test {
namespace {

using testing::HasSubstr;

class KelvanePng : public KelvaneTool {
 protected:
  void SetUp() override {
    // A page of an inch by half an inch, with its upper left quarter filled.
    Write("a.emf", Metafile()
                       .Bounds(0, 0, 72, 36)
                       .CreateBrush(1, 0x0000FF)
                       .SelectObject(1)
                       .BitBlt({0, 0}, {36, 18})
                       .Build());
  }

  /// @return the picture that the words, and the page's bounds, make of the file.
  [[nodiscard]] Raster Picture(std::vector<std::string> words) const {
    words.insert(words.end(), {"--page", "bounds", "-o", "a.png", "a.emf"});
    const ToolResult result = Run(words);
    EXPECT_EQ(result.status, 0) << result.errors;
    return RasterOfPng(Read("a.png"));
  }
};

TEST_F(KelvanePng, HasAsManyPixelsAnInchAsAScreen) {
  const Raster picture = Picture({});
  EXPECT_EQ(picture.Width(), 96);
  EXPECT_EQ(picture.Height(), 48);
  EXPECT_EQ(picture.At(24, 12), kRedPixel);
  EXPECT_EQ(picture.At(72, 36), kWhitePixel);
}

TEST_F(KelvanePng, HasAsManyAsItIsAskedFor) {
  EXPECT_EQ(Picture({"--dpi", "300"}).Width(), 300);
  EXPECT_EQ(Picture({"--dpi", "300", "--scale", "2"}).Height(), 300);
}

TEST_F(KelvanePng, TakesItsSizeInPixels) {
  EXPECT_EQ(Picture({"--width", "1000"}).Height(), 500);
  EXPECT_EQ(Picture({"--height", "10"}).Width(), 20);
  const Raster picture = Picture({"--width", "10", "--height", "10", "--dpi", "600"});
  EXPECT_EQ(picture.Width(), 10);
  EXPECT_EQ(picture.Height(), 10);
}

TEST_F(KelvanePng, HasTheBackgroundThatIsAskedFor) {
  EXPECT_EQ(Picture({"--background", "#00ff00"}).At(72, 36), kGreenPixel);
  EXPECT_EQ(Picture({"--background", "none"}).At(24, 12), kRedPixel);
  const ToolResult result = Run({"--background", "red", "-o", "b.png", "a.emf"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.errors, HasSubstr("background cannot be 'red': it is none, white or #rrggbb"));
}

TEST_F(KelvanePng, IsRefusedBeforeItTakesTooMuchMemory) {
  const ToolResult result = Run({"--width", "14400", "--height", "14400", "--page", "bounds",
                                 "--scale", "3", "-o", "b.png", "a.emf"});
  EXPECT_EQ(result.status, 0) << result.errors;
  const ToolResult wide = Run({"--dpi", "9600", "--scale", "10", "-o", "c.png", "a.emf"});
  EXPECT_EQ(wide.status, 4);
  EXPECT_THAT(wide.errors, HasSubstr("more than 32767 pixels a side, or 2^28 in all"));
  EXPECT_LT(wide.processorSeconds, 1);
}

}  // namespace
}  // namespace kelvane::test

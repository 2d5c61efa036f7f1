#include <string>
#include <vector>

#import <AppKit/NSPDFImageRep.h>
#import <Foundation/NSAffineTransform.h>
#include <gtest/gtest.h>

#import <kelvane/torvi_emf_image_rep.h>

#include "samples.h"
#include "support/appkit/appkit.h"
#include "support/library.h"
#include "support/metafile.h"

namespace kelvane::samples {
namespace {

using test::Raster;

/// Whether two renderers made the same of a page. A colour may lie a fifth of its range outside
/// what the other shows around the place, since one of them moves thin strokes onto the grid of
/// pixels. One pixel in a thousand may differ in any way: the thinnest lines have steps in one
/// picture and shades in the other.
bool AreAlike(const Raster& picture, const Raster& other) {
  constexpr int kTolerance = 51;
  const int differing = test::DifferingPixels(picture, other, kTolerance);
  return differing * 1000 <= picture.Width() * picture.Height();
}

/// The samples that two renderers draw alike. How they magnify bitmaps is a matter of taste.
std::vector<Sample> SamplesWithoutBitmaps() {
  std::vector<Sample> samples = AllSamples();
  std::erase_if(samples, [](const Sample& sample) { return sample.name == "bitmaps"; });
  return samples;
}

class ASampleImage : public testing::WithParamInterface<Sample>, public test::DrawingTest {
 protected:
  void SetUp() override {
    DrawingTest::SetUp();
    const std::vector<unsigned char> metafile = GetParam().metafile.Build();
    pdf_ = test::ConvertInMemory(metafile).output;
    image_ = [[TorviEMFImageRep alloc] initWithData:test::DataOf(metafile)];
    ASSERT_NE(image_, nil);
  }

  void TearDown() override {
    [image_ release];
    DrawingTest::TearDown();
  }

  [[nodiscard]] NSRect Area(int scale) const {
    return NSMakeRect(0, 0, [image_ size].width * scale, [image_ size].height * scale);
  }

  std::string pdf_;
  TorviEMFImageRep* image_ = nil;
};

TEST_P(ASampleImage, LooksLikeItsPdf) {
  const Raster expected(pdf_);
  const Raster picture =
      test::PictureOf(expected.Width(), expected.Height(), [&] { EXPECT_EQ([image_ draw], YES); });
  EXPECT_TRUE(AreAlike(picture, expected));
}

TEST_P(ASampleImage, IsSharpWhenItIsEnlarged) {
  constexpr int kScale = 3;
  const Raster expected(pdf_, kScale);
  const Raster picture = test::PictureOf(expected.Width(), expected.Height(),
                                         [&] { EXPECT_EQ([image_ drawInRect:Area(kScale)], YES); });
  EXPECT_TRUE(AreAlike(picture, expected));
}

TEST_P(ASampleImage, LooksTheSameInAWindow) {
  const Raster expected(pdf_);
  const Raster picture = test::WindowPictureOf(expected.Width(), expected.Height(),
                                               [&] { EXPECT_EQ([image_ draw], YES); });
  EXPECT_TRUE(AreAlike(picture, expected));
}

INSTANTIATE_TEST_SUITE_P(Every, ASampleImage, testing::ValuesIn(SamplesWithoutBitmaps()),
                         [](const auto& sample) { return sample.param.name; });

}  // namespace
}  // namespace kelvane::samples

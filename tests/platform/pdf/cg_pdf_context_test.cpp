#include "platform/pdf/cg_pdf_context.h"

#include <algorithm>
#include <array>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/files.h"
#include "support/pdf.h"
#include "support/process.h"
#include "support/raster.h"
#include "support/surface.h"
#include "support/text.h"

namespace kelvane {
namespace {

using test::FillRect;
using test::Pdf;
using test::PdfBytesOf;
using test::PdfContentOf;
using test::Raster;
using test::StrokeLine;
using testing::ElementsAre;
using testing::Gt;
using testing::Lt;

constexpr CGFloat kInfinity = std::numeric_limits<CGFloat>::infinity();
constexpr CGFloat kNaN = std::numeric_limits<CGFloat>::quiet_NaN();
constexpr Raster::Color kBlack = {0, 0, 0};
constexpr Raster::Color kWhite = {255, 255, 255};

// Making and closing one.

CFOwned<CGContext> ContextOver(CFMutableDataRef data, const CGRect* box) {
  const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithCFData(data));
  return CFOwned<CGContext>(CGPDFContextCreate(consumer.get(), box, nullptr));
}

TEST(CGPDFContext, IsRefusedWithoutAConsumer) {
  EXPECT_EQ(CGPDFContextCreate(nullptr, &test::kPageBox, nullptr), nullptr);
}

TEST(CGPDFContext, IsRefusedWithoutABox) {
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  EXPECT_EQ(ContextOver(data.get(), nullptr), nullptr);
}

class RefusedBox : public testing::TestWithParam<CGRect> {};

TEST_P(RefusedBox, MakesNoContext) {
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  EXPECT_EQ(ContextOver(data.get(), &GetParam()), nullptr);
  EXPECT_EQ(CFDataGetLength(data.get()), 0);
}

INSTANTIATE_TEST_SUITE_P(Boxes, RefusedBox,
                         testing::Values(CGRectMake(0, 0, 0, 100), CGRectMake(0, 0, 100, 0),
                                         CGRectMake(0, 0, 0, 0), CGRectMake(0, 0, kNaN, 100),
                                         CGRectMake(0, 0, 100, kInfinity),
                                         CGRectMake(kNaN, 0, 100, 100),
                                         CGRectMake(0, -kInfinity, 100, 100)));

TEST(CGPDFContext, LeavesItsDataUntouchedWhenReleasedUnclosed) {
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  data->bytes = {1, 2, 3};
  {
    const auto context = ContextOver(data.get(), &test::kPageBox);
    CGContextBeginPage(context.get(), &test::kPageBox);
    FillRect(context.get(), CGRectMake(1, 2, 3, 4));
    CGContextEndPage(context.get());
  }
  EXPECT_EQ(data->bytes, (std::vector<unsigned char>{1, 2, 3}));
}

TEST(CGPDFContext, AppendsItsDocumentWhenClosed) {
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  data->bytes = {'x'};
  const auto context = ContextOver(data.get(), &test::kPageBox);
  CGContextBeginPage(context.get(), &test::kPageBox);
  CGContextEndPage(context.get());
  CGPDFContextClose(context.get());
  const std::string bytes(data->bytes.begin(), data->bytes.end());
  EXPECT_EQ(bytes.substr(0, 9), "x%PDF-1.4");
}

TEST(CGPDFContext, WritesItsDocumentOnceHoweverOftenItIsClosed) {
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  const auto context = ContextOver(data.get(), &test::kPageBox);
  CGContextBeginPage(context.get(), &test::kPageBox);
  CGPDFContextClose(context.get());
  const std::vector<unsigned char> once = data->bytes;
  CGPDFContextClose(context.get());
  EXPECT_EQ(data->bytes, once);
}

TEST(CGPDFContext, EndsAnOpenPageWhenClosed) {
  const Pdf pdf(test::DocumentBytesOf([](CGContextRef c) {
    CGContextBeginPage(c, &test::kPageBox);
    FillRect(c, CGRectMake(1, 2, 3, 4));
  }));
  EXPECT_EQ(pdf.Content(), "1 2 3 4 re\nf\n");
}

/// Takes `room` bytes, then fails.
class FullConsumer final : public CGDataConsumer {
 public:
  explicit FullConsumer(std::size_t room) : room_(room) {}

  void Write(std::span<const unsigned char> bytes) override {
    if (bytes.size() > room_) throw std::system_error(ENOSPC, std::generic_category());
    room_ -= bytes.size();
  }
  void Commit() override { committed = true; }

  bool committed = false;

 private:
  std::size_t room_;
};

TEST(CGPDFContext, ThrowsWhatItsConsumerThrows) {
  for (const std::size_t room : {0U, 5U, 100U, 300U}) {
    const CFOwned<FullConsumer> consumer(new FullConsumer(room));
    const CFOwned<CGContext> context(CGPDFContextCreate(consumer.get(), &test::kPageBox, nullptr));
    CGContextBeginPage(context.get(), &test::kPageBox);
    EXPECT_THROW(CGPDFContextClose(context.get()), std::system_error) << "after " << room;
    EXPECT_FALSE(consumer->committed);
  }
}

// Paths.

TEST(CGPDFContext, WritesARectangleWhereItIs) {
  EXPECT_EQ(PdfContentOf([](CGContextRef c) { FillRect(c, CGRectMake(10, -60, 20, 40)); }),
            "10 -60 20 40 re\nf\n");
}

TEST(CGPDFContext, WritesPathsInPageSpaceWithoutATransform) {
  EXPECT_EQ(PdfContentOf([](CGContextRef c) {
              CGContextConcatCTM(c, {2, 0, 0, -2, 100, 50});
              FillRect(c, CGRectMake(1, 2, 3, 4));
              CGContextSetLineWidth(c, 3);
              StrokeLine(c, {0, 0}, {5, 5});
            }),
            "102 46 6 -8 re\nf\n6 w\n100 50 m\n110 40 l\nS\n");
}

TEST(CGPDFContext, WrapsAnUnevenStrokeInItsTransform) {
  EXPECT_EQ(PdfContentOf([](CGContextRef c) {
              CGContextConcatCTM(c, {4, 0, 0, 1, 100, 0});
              CGContextSetLineWidth(c, 2);
              StrokeLine(c, {1, 2}, {3, 4});
            }),
            "2 w\nq\n4 0 0 1 100 0 cm\n1 2 m\n3 4 l\nS\nQ\n");
}

TEST(CGPDFContext, MapsARectangleBackUnderAnUnevenStroke) {
  EXPECT_EQ(PdfContentOf([](CGContextRef c) {
              CGContextConcatCTM(c, {4, 0, 0, 1, 0, 0});
              CGContextAddRect(c, CGRectMake(1, 2, 3, 4));
              CGContextDrawPath(c, kCGPathFillStroke);
            }),
            "q\n4 0 0 1 0 0 cm\n1 2 3 4 re\nB\nQ\n");
}

TEST(CGPDFContext, MapsARectangleBackToLinesUnderAShearedStroke) {
  EXPECT_EQ(PdfContentOf([](CGContextRef c) {
              CGContextAddRect(c, CGRectMake(1, 2, 3, 4));
              CGContextConcatCTM(c, {1, 0, 1, 1, 0, 0});
              CGContextDrawPath(c, kCGPathStroke);
            }),
            "q\n1 0 1 1 0 0 cm\n-1 2 m\n2 2 l\n-2 6 l\n-5 6 l\nh\nS\nQ\n");
}

TEST(CGPDFContext, ShowsAnUnevenStrokeWhereItsPathIs) {
  const Raster page(PdfBytesOf([](CGContextRef c) {
    CGContextConcatCTM(c, CGAffineTransformMakeScale(5, 1));
    CGContextSetLineWidth(c, 2);
    CGContextAddRect(c, CGRectMake(4, 20, 12, 60));  // from (20, 20) to (80, 80) on the page
    CGContextDrawPath(c, kCGPathStroke);
  }));
  EXPECT_EQ(page.At(23, 50), kBlack);  // upright sides are 10 wide
  EXPECT_EQ(page.At(17, 50), kBlack);
  EXPECT_EQ(page.At(27, 50), kWhite);
  EXPECT_EQ(page.At(50, 80), kBlack);  // level ones 2
  EXPECT_EQ(page.At(50, 76), kWhite);
  EXPECT_EQ(page.At(50, 83), kWhite);
}

TEST(CGPDFContext, WritesTheThinnestLineAsWidthZero) {
  EXPECT_EQ(PdfContentOf([](CGContextRef c) {
              CGContextSetLineWidth(c, 0);
              StrokeLine(c, {1, 2}, {3, 4});
            }),
            "0 w\n1 2 m\n3 4 l\nS\n");
}

TEST(CGPDFContext, KeepsAllDigitsOfAColour) {
  EXPECT_EQ(PdfContentOf([](CGContextRef c) {
              test::SetFill(c, 255.0F / 256, 128.0F / 256, 1.0F / 256);
              FillRect(c, CGRectMake(1, 2, 3, 4));
            }),
            "0.99609375 0.5 0.00390625 rg\n1 2 3 4 re\nf\n");
}

TEST(CGPDFContext, ClosesEverySaveByThePagesEnd) {
  const std::string content = PdfContentOf([](CGContextRef c) {
    for (int i = 0; i < 5; ++i) {
      CGContextSaveGState(c);
      CGContextClipToRect(c, CGRectMake(0, 0, 50, 50));
      CGContextConcatCTM(c, CGAffineTransformMakeScale(2, 1));
      StrokeLine(c, {1, 2}, {3, 4});
    }
    CGContextRestoreGState(c);
    StrokeLine(c, {1, 2}, {3, 4});
  });
  std::istringstream lines(content);
  int depth = 0;
  for (std::string line; std::getline(lines, line);) {
    depth += line == "q" ? 1 : line == "Q" ? -1 : 0;
    ASSERT_GE(depth, 0);
  }
  EXPECT_EQ(depth, 0);
}

TEST(CGPDFContext, WritesAClipBetweenSaveAndRestore) {
  EXPECT_EQ(PdfContentOf([](CGContextRef c) {
              CGContextClipToRect(c, CGRectMake(0, 0, 50, 50));
              FillRect(c, CGRectMake(1, 2, 3, 4));
            }),
            "q\n0 0 50 50 re\nW n\n1 2 3 4 re\nf\nQ\n");
}

TEST(CGPDFContext, KnowsWhichValuesARestoreBringsBack) {
  EXPECT_EQ(PdfContentOf([](CGContextRef c) {
              CGContextSaveGState(c);
              CGContextClipToRect(c, CGRectMake(0, 0, 50, 50));
              test::SetFill(c, 1, 0, 0);
              FillRect(c, CGRectMake(1, 2, 3, 4));
              CGContextRestoreGState(c);
              FillRect(c, CGRectMake(5, 6, 7, 8));
            }),
            "q\n0 0 50 50 re\nW n\n1 0 0 rg\n1 2 3 4 re\nf\nQ\n5 6 7 8 re\nf\n");
}

TEST(CGPDFContext, StaysFreeOfComplaintsWithCoordinatesBeyond64Bits) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "a.pdf", PdfBytesOf([](CGContextRef c) {
                    StrokeLine(c, {-1e30F, 0}, {3e38F, 50});
                  }));
  EXPECT_EQ(test::ComplaintsAbout(folder / "a.pdf"), "");
}

// A long content.

TEST(CGPDFContext, CutsALongContentIntoSeveralStreams) {
  constexpr int kLines = 300000;
  std::string expected;
  const std::string bytes = PdfBytesOf([&](CGContextRef c) {
    for (int i = 0; i < kLines; ++i) {
      StrokeLine(c, {0, 0}, {static_cast<CGFloat>(i), 1});
      expected += "0 0 m\n" + std::to_string(i) + " 1 l\nS\n";
    }
  });
  const Pdf pdf(bytes);
  EXPECT_GT(pdf.Page().getKey("/Contents").getArrayNItems(), 3);
  EXPECT_TRUE(pdf.Content() == expected);
  EXPECT_LT(bytes.size(), expected.size() / 2);  // deflated
}

// Images and text.

TEST(CGPDFContext, DrawsAnImageIntoItsRectangle) {
  const auto image = test::ImageOf(1, 1, 1, {7});
  EXPECT_EQ(PdfContentOf([&](CGContextRef c) {
              CGContextDrawImage(c, CGRectMake(10, 20, 30, 40), image.get());
            }),
            "q\n30 0 0 40 10 20 cm\n/Im1 Do\nQ\n");
}

TEST(CGPDFContext, ShowsAnImageUpright) {
  // Red and green above, blue and white below.
  const auto image = test::ImageOf(2, 2, 3, {255, 0, 0, 0, 255, 0, 0, 0, 255, 255, 255, 255});
  const Raster page(PdfBytesOf(
      [&](CGContextRef c) { CGContextDrawImage(c, CGRectMake(20, 20, 60, 60), image.get()); }));
  constexpr int kMuch = 200;  // the renderer smooths
  constexpr int kLittle = 50;
  EXPECT_THAT(page.At(21, 21), ElementsAre(Gt(kMuch), Lt(kLittle), Lt(kLittle)));
  EXPECT_THAT(page.At(78, 21), ElementsAre(Lt(kLittle), Gt(kMuch), Lt(kLittle)));
  EXPECT_THAT(page.At(21, 78), ElementsAre(Lt(kLittle), Lt(kLittle), Gt(kMuch)));
  EXPECT_EQ(page.At(10, 50), kWhite);
}

TEST(CGPDFContext, MarksNothingForAnImageWhoseBytesWentMissing) {
  const CFOwned<CFData> bytes(CFDataCreateMutable(kCFAllocatorDefault, 0));
  CFDataSetLength(bytes.get(), 4);
  const CFOwned<const CGDataProvider> provider(CGDataProviderCreateWithCFData(bytes.get()));
  const CFOwned<const CGColorSpace> gray(CGColorSpaceCreateDeviceGray());
  const CFOwned<const CGImage> image(CGImageCreate(2, 2, 8, 8, 2, gray.get(), 0, provider.get(),
                                                   nullptr, true, kCGRenderingIntentDefault));
  CFDataSetLength(bytes.get(), 3);
  EXPECT_EQ(PdfContentOf([&](CGContextRef c) {
              CGContextDrawImage(c, CGRectMake(10, 20, 30, 40), image.get());
            }),
            "");
}

TEST(CGPDFContext, WritesTextThatCanBeExtracted) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "a.pdf", PdfBytesOf([](CGContextRef c) {
                    test::DrawHelvetica(c, u"Hello", 12, {1, 0, 0, 1, 10, 50});
                  }));
  const test::ProcessResult text = test::Run({"pdftotext", folder / "a.pdf", "-"});
  EXPECT_EQ(text.output, "Hello\n\n\f");
}

// Pages.

TEST(CGPDFContext, KeepsItsPagesInOrderEachWithItsOwn) {
  const auto image = test::ImageOf(1, 1, 1, {7});
  constexpr CGRect kSecondBox = {{0, 0}, {20, 30}};
  const Pdf pdf(test::DocumentBytesOf([&](CGContextRef c) {
    CGContextBeginPage(c, &test::kPageBox);
    test::SetFill(c, 1, 0, 0);
    FillRect(c, CGRectMake(1, 2, 3, 4));
    CGContextEndPage(c);
    CGContextBeginPage(c, &kSecondBox);
    CGContextDrawImage(c, CGRectMake(0, 0, 2, 2), image.get());
    FillRect(c, CGRectMake(5, 6, 7, 8));
    CGContextEndPage(c);
  }));
  ASSERT_EQ(pdf.PageCount(), 2U);
  EXPECT_EQ(pdf.MediaBox(0), "[ 0 0 100 100 ]");
  EXPECT_EQ(pdf.MediaBox(1), "[ 0 0 20 30 ]");
  EXPECT_EQ(pdf.Content(0), "1 0 0 rg\n1 2 3 4 re\nf\n");
  EXPECT_EQ(pdf.Content(1), "q\n2 0 0 2 0 0 cm\n/Im1 Do\nQ\n5 6 7 8 re\nf\n");
  EXPECT_FALSE(pdf.Page(0).getKey("/Resources").hasKey("/XObject"));
}

TEST(CGPDFContext, TakesTheDocumentsBoxForAPageWhoseOwnIsOfNoUse) {
  for (const CGRect& box : {CGRectMake(0, 0, kNaN, 1), CGRectMake(5, 5, 0, 10)}) {
    EXPECT_EQ(Pdf(PdfBytesOf([](CGContextRef) {}, box)).MediaBox(), "[ 0 0 100 100 ]");
  }
}

}  // namespace
}  // namespace kelvane

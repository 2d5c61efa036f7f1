#include "platform/pdf/pdf_image.h"

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/files.h"
#include "support/images.h"
#include "support/pdf.h"
#include "support/raster.h"
#include "support/surface.h"

namespace kelvane {
namespace {

using test::ByteList;
using test::GrayOf;
using test::ImageOf;
using test::IndexedOf;
using test::kBluePixel;
using test::kGreenPixel;
using test::kRedPixel;
using test::kWhitePixel;
using test::MakerOf;
using test::Masked;
using test::MaskOf;
using test::Pdf;
using test::PdfBytesOf;
using test::Raster;

void Draw(CGContextRef context, const CFOwned<const CGImage>& image) {
  CGContextDrawImage(context, CGRectMake(0, 0, 10, 10), image.get());
}

QPDFObjectHandle XObjectsOf(const Pdf& pdf, std::size_t page = 0) {
  return pdf.Page(page).getKey("/Resources").getKey("/XObject");
}

std::string DataOf(QPDFObjectHandle stream) {
  const auto data = stream.getStreamData(qpdf_dl_all);
  return {reinterpret_cast<const char*>(data->getBuffer()), data->getSize()};
}

TEST(PdfImage, NamesItsLayout) {
  const auto image = ImageOf(2, 1, 3, {1, 2, 3, 4, 5, 6});
  const Pdf pdf(PdfBytesOf([&](CGContextRef c) { Draw(c, image); }));
  QPDFObjectHandle dictionary = XObjectsOf(pdf).getKey("/Im1").getDict();
  dictionary.removeKey("/Length");
  EXPECT_EQ(dictionary.unparse(),
            "<< /BitsPerComponent 8 /ColorSpace /DeviceRGB /Filter /FlateDecode /Height 1 "
            "/Interpolate true /Subtype /Image /Type /XObject /Width 2 >>");
}

TEST(PdfImage, OfOneComponentIsGrey) {
  const auto image = ImageOf(1, 1, 1, {7});
  const Pdf pdf(PdfBytesOf([&](CGContextRef c) { Draw(c, image); }));
  EXPECT_EQ(XObjectsOf(pdf).getKey("/Im1").getDict().getKey("/ColorSpace").unparse(),
            "/DeviceGray");
}

TEST(PdfImage, HasItsRowsWithoutPadding) {
  const auto image = ImageOf(1, 2, 3, {'a', 'b', 'c', 'X', 'd', 'e', 'f', 'X'}, 4);
  const Pdf pdf(PdfBytesOf([&](CGContextRef c) { Draw(c, image); }));
  EXPECT_EQ(DataOf(XObjectsOf(pdf).getKey("/Im1")), "abcdef");
}

TEST(PdfImage, OfTheSamePixelsIsStoredOnce) {
  const Pdf pdf(PdfBytesOf([](CGContextRef c) {
    Draw(c, ImageOf(1, 2, 3, {'a', 'b', 'c', 'd', 'e', 'f'}));
    Draw(c, ImageOf(1, 2, 3, {'a', 'b', 'c', 'X', 'd', 'e', 'f', 'X'}, 4));
  }));
  EXPECT_EQ(XObjectsOf(pdf).getKeys().size(), 1U);
}

TEST(PdfImage, OfTheSamePixelsOnTwoPagesIsStoredOnce) {
  const Pdf pdf(test::DocumentBytesOf([](CGContextRef c) {
    for (int page = 0; page < 2; ++page) {
      CGContextBeginPage(c, &test::kPageBox);
      Draw(c, ImageOf(1, 1, 1, {7}));
    }
  }));
  EXPECT_EQ(XObjectsOf(pdf, 0).getKey("/Im1").getObjGen(),
            XObjectsOf(pdf, 1).getKey("/Im1").getObjGen());
}

TEST(PdfImage, OfTheSameBytesInAnotherLayoutIsAnother) {
  const Pdf pdf(PdfBytesOf([](CGContextRef c) {
    Draw(c, ImageOf(1, 3, 1, {1, 2, 3}));
    Draw(c, ImageOf(3, 1, 1, {1, 2, 3}));
    Draw(c, ImageOf(1, 1, 3, {1, 2, 3}));
  }));
  EXPECT_EQ(XObjectsOf(pdf).getKeys().size(), 3U);
}

TEST(PdfImage, OfOtherPixelsIsAnother) {
  const Pdf pdf(PdfBytesOf([](CGContextRef c) {
    Draw(c, ImageOf(1, 1, 1, {1}));
    Draw(c, ImageOf(1, 1, 1, {2}));
  }));
  EXPECT_EQ(XObjectsOf(pdf).getKeys().size(), 2U);
}

QPDFObjectHandle ImageIn(const Pdf& pdf) {
  return XObjectsOf(pdf).getKey("/Im1");
}

/// @return the image's dictionary without what its data makes of it.
std::string LayoutIn(const Pdf& pdf) {
  QPDFObjectHandle dictionary = ImageIn(pdf).getDict();
  dictionary.removeKey("/Length");
  return dictionary.unparse();
}

// Providers.

TEST(PdfImage, OfAProviderThatMakesBytesHasThem) {
  int timesAsked = 0;
  const Pdf pdf(PdfBytesOf([&](CGContextRef c) {
    Draw(c, GrayOf(2, 1, MakerOf({'a', 'b'}, timesAsked)));
  }));
  EXPECT_EQ(DataOf(ImageIn(pdf)), "ab");
}

TEST(PdfImage, AsksItsProviderOnceHoweverOftenItIsDrawn) {
  int timesAsked = 0;
  const auto image = GrayOf(2, 1, MakerOf({'a', 'b'}, timesAsked));
  const Pdf pdf(test::DocumentBytesOf([&](CGContextRef c) {
    for (int page = 0; page < 2; ++page) {
      CGContextBeginPage(c, &test::kPageBox);
      Draw(c, image);
      Draw(c, image);
    }
  }));
  EXPECT_EQ(timesAsked, 1);
  EXPECT_EQ(XObjectsOf(pdf, 0).getKey("/Im1").getObjGen(),
            XObjectsOf(pdf, 1).getKey("/Im1").getObjGen());
}

TEST(PdfImage, InAPatternIsTheOneThatIsDrawn) {
  int timesAsked = 0;
  const auto image = GrayOf(2, 1, MakerOf({'a', 'b'}, timesAsked));
  PdfBytesOf([&](CGContextRef c) {
    Draw(c, image);
    CGPattern pattern;
    pattern.cell = {2, 1};
    pattern.image = CFShare(image.get());
    c->SetFillPattern(std::make_shared<const CGPattern>(std::move(pattern)));
    test::FillRect(c, test::kPageBox);
  });
  EXPECT_EQ(timesAsked, 1);
}

TEST(PdfImage, OfAProviderThatFallsShortIsLeftOut) {
  int timesAsked = 0;
  const auto image = GrayOf(2, 1, MakerOf({'a'}, timesAsked));
  const std::string content = test::PdfContentOf([&](CGContextRef c) {
    Draw(c, image);
    Draw(c, image);
    test::FillRect(c, CGRectMake(1, 2, 3, 4));
  });
  EXPECT_EQ(content, "1 2 3 4 re\nf\n");
  EXPECT_EQ(timesAsked, 1);
}

TEST(PdfImage, WithAMaskThatFallsShortIsLeftOut) {
  int timesAsked = 0;
  const auto masked = Masked(ImageOf(1, 1, 1, {7}), GrayOf(1, 1, MakerOf({}, timesAsked)));
  EXPECT_FALSE(
      Pdf(PdfBytesOf([&](CGContextRef c) { Draw(c, masked); })).Page().hasKey("/Contents"));
}

TEST(PdfImage, LetsItsBytesGoOnceItIsDrawn) {
  constexpr unsigned char kByte = 7;
  PdfBytesOf([&](CGContextRef c) {
    int timesReleased = 0;
    CFOwned<const CGDataProvider> provider(CGDataProviderCreateWithData(
        &timesReleased, &kByte, 1,
        [](void* info, const void*, std::size_t) { ++*static_cast<int*>(info); }));
    Draw(c, GrayOf(1, 1, provider));
    provider.reset();
    EXPECT_EQ(timesReleased, 1);
  });
}

// Colours by number.

TEST(PdfImage, OfNumbersHasATableOfItsColours) {
  const Pdf pdf(PdfBytesOf([](CGContextRef c) {
    Draw(c, IndexedOf(3, 1, 4, {'a', 'b', 'c', 'd', 'e', 'f'}, {1, 0x10}));
  }));
  QPDFObjectHandle dictionary = ImageIn(pdf).getDict();
  EXPECT_EQ(dictionary.getKey("/ColorSpace").getArrayAsVector().size(), 4U);
  EXPECT_EQ(dictionary.getKey("/ColorSpace").unparseResolved(),
            "[ /Indexed /DeviceRGB 1 (abcdef) ]");
  EXPECT_EQ(dictionary.getKey("/BitsPerComponent").getIntValue(), 4);
  EXPECT_EQ(DataOf(ImageIn(pdf)), std::string("\x01\x10", 2));
}

TEST(PdfImage, OfNumbersSharesItsTable) {
  const Pdf pdf(PdfBytesOf([](CGContextRef c) {
    Draw(c, IndexedOf(1, 1, 8, {1, 2, 3}, {0}));
    Draw(c, IndexedOf(2, 1, 8, {1, 2, 3}, {0, 0}));
  }));
  const auto spaceOf = [&](const char* name) {
    return XObjectsOf(pdf).getKey(name).getDict().getKey("/ColorSpace").getObjGen();
  };
  EXPECT_EQ(spaceOf("/Im1"), spaceOf("/Im2"));
}

constexpr CGRect kWholePage = {{0, 0}, {100, 100}};

/// @return the document's page with the image over it, on green.
std::string OnGreen(const CFOwned<const CGImage>& image) {
  return PdfBytesOf([&](CGContextRef c) {
    test::SetFill(c, 0, 1, 0);
    test::FillRect(c, kWholePage);
    test::SetFill(c, 1, 0, 0);
    CGContextDrawImage(c, kWholePage, image.get());
  });
}

class IndexedBits : public testing::TestWithParam<std::size_t> {};

TEST_P(IndexedBits, ShowTheColoursOfTheirNumbers) {
  const std::size_t bits = GetParam();
  const auto firstIsOne = static_cast<unsigned char>(1U << (8 - bits));
  const Raster page(OnGreen(IndexedOf(2, 1, bits, {255, 0, 0, 0, 0, 255}, {firstIsOne, 0})));
  EXPECT_EQ(page.At(25, 50), kBluePixel);
  EXPECT_EQ(page.At(75, 50), kRedPixel);
}

INSTANTIATE_TEST_SUITE_P(Sizes, IndexedBits, testing::Values(1, 2, 4, 8));

// Masks.

TEST(PdfImageMask, NamesItsLayout) {
  const Pdf pdf(PdfBytesOf([](CGContextRef c) { Draw(c, MaskOf(9, 1, {1, 0x80}, true)); }));
  EXPECT_EQ(LayoutIn(pdf),
            "<< /BitsPerComponent 1 /Filter /FlateDecode /Height 1 /ImageMask true "
            "/Interpolate true /Subtype /Image /Type /XObject /Width 9 >>");
  EXPECT_EQ(DataOf(ImageIn(pdf)), "\x01\x80");
}

// The upper left pixel is 1, the others are 0.
const ByteList kUpperLeft = {0x80, 0};

TEST(PdfImageMask, PaintsTheFillColourWhereItsBitsAreNone) {
  const Raster page(OnGreen(MaskOf(2, 2, kUpperLeft)));
  EXPECT_EQ(page.At(25, 25), kGreenPixel);
  EXPECT_EQ(page.At(75, 25), kRedPixel);
  EXPECT_EQ(page.At(25, 75), kRedPixel);
  EXPECT_EQ(page.At(75, 75), kRedPixel);
}

TEST(PdfImageMask, PaintsTheFillPattern) {
  CGPattern pattern;
  pattern.cell = {100, 100};
  CGPath lowerHalf;
  lowerHalf.AddRectangle({0, 0}, {100, 50});
  pattern.shapes.push_back({lowerHalf, {0, 0, 1, 1}});
  const auto shared = std::make_shared<const CGPattern>(std::move(pattern));
  const Raster page(PdfBytesOf([&](CGContextRef c) {
    c->SetFillPattern(shared);
    CGContextDrawImage(c, CGRectMake(0, 0, 80, 100), MaskOf(2, 1, {0x80}).get());
  }));
  EXPECT_EQ(page.At(20, 75), kWhitePixel);
  EXPECT_EQ(page.At(60, 75), kBluePixel);
  EXPECT_EQ(page.At(60, 25), kWhitePixel);
  EXPECT_EQ(page.At(90, 75), kWhitePixel);
}

TEST(PdfImageMask, LeavesNothingOfItselfToWhatIsDrawnAfterAPattern) {
  CGPattern pattern;
  pattern.cell = {10, 10};
  const auto shared = std::make_shared<const CGPattern>(std::move(pattern));
  const Raster page(PdfBytesOf([&](CGContextRef c) {
    c->SetFillPattern(shared);
    CGContextDrawImage(c, kWholePage, MaskOf(2, 1, {0x80}).get());
    CGContextDrawShading(
        c,
        CGTriangleMesh{{{{0, 0}, {1, 0, 0, 1}}, {{90, 0}, {1, 0, 0, 1}}, {{0, 90}, {1, 0, 0, 1}}}});
    test::SetFill(c, 0, 0, 1);
    test::FillRect(c, CGRectMake(90, 90, 10, 10));
  }));
  EXPECT_EQ(page.At(5, 95), kRedPixel);
  EXPECT_EQ(page.At(95, 5), kBluePixel);
}

TEST(PdfImageMask, SharesWhatLetsAPatternThrough) {
  CGPattern pattern;
  pattern.cell = {10, 10};
  const auto shared = std::make_shared<const CGPattern>(std::move(pattern));
  const Pdf pdf(PdfBytesOf([&](CGContextRef c) {
    c->SetFillPattern(shared);
    for (const CGFloat x : {0.0F, 0.0F, 10.0F})
      CGContextDrawImage(c, CGRectMake(x, 0, 10, 10), MaskOf(2, 1, {0x80}).get());
  }));
  EXPECT_EQ(pdf.Page().getKey("/Resources").getKey("/ExtGState").getKeys().size(), 2U);
}

TEST(PdfImage, HidesWhereItsMaskHasBits) {
  const auto red = ImageOf(1, 1, 3, {255, 0, 0});
  const Raster page(OnGreen(Masked(red, MaskOf(2, 2, kUpperLeft))));
  EXPECT_EQ(page.At(25, 25), kGreenPixel);
  EXPECT_EQ(page.At(75, 25), kRedPixel);
  EXPECT_EQ(page.At(25, 75), kRedPixel);
}

TEST(PdfImage, IsAsOpaqueAsItsGreyMask) {
  const auto red = ImageOf(1, 1, 3, {255, 0, 0});
  const Raster page(OnGreen(Masked(red, GrayOf(2, 2, test::ProviderOf({0, 255, 51, 255})))));
  EXPECT_EQ(page.At(25, 25), kGreenPixel);
  EXPECT_EQ(page.At(75, 25), kRedPixel);
  EXPECT_EQ(page.At(25, 75), (Raster::Color{51, 204, 0}));
}

TEST(PdfImage, NamesItsMaskByKind) {
  const auto maskOf = [](const CFOwned<const CGImage>& mask, const char* key) {
    const Pdf pdf(
        PdfBytesOf([&](CGContextRef c) { Draw(c, Masked(ImageOf(1, 1, 1, {7}), mask)); }));
    return DataOf(ImageIn(pdf).getDict().getKey(key));
  };
  EXPECT_EQ(maskOf(MaskOf(8, 1, {'m'}), "/Mask"), "m");
  EXPECT_EQ(maskOf(ImageOf(1, 1, 1, {'s'}), "/SMask"), "s");
}

TEST(PdfImage, SmoothsItsMaskOnlyWhereTheMaskSaysSo) {
  const auto sharp = GrayOf(1, 1, test::ProviderOf({7}));  // ImageOf makes smooth ones
  const Pdf pdf(PdfBytesOf([&](CGContextRef c) { Draw(c, Masked(ImageOf(1, 1, 1, {8}), sharp)); }));
  QPDFObjectHandle dictionary = ImageIn(pdf).getDict();
  EXPECT_TRUE(dictionary.hasKey("/Interpolate"));
  EXPECT_FALSE(dictionary.getKey("/SMask").getDict().hasKey("/Interpolate"));
}

TEST(PdfImage, OfTheSamePixelsInAnotherMaskIsAnother) {
  const Pdf pdf(PdfBytesOf([](CGContextRef c) {
    for (const unsigned char bits : ByteList{0x00, 0x80, 0x80})
      Draw(c, Masked(ImageOf(1, 1, 1, {7}), MaskOf(1, 1, {bits})));
    Draw(c, ImageOf(1, 1, 1, {7}));
  }));
  EXPECT_EQ(XObjectsOf(pdf).getKeys().size(), 3U);
}

// JPEG files.

CFOwned<const CGImage> JpegImage(unsigned char components,
                                 const CFOwned<const CGDataProvider>& file) {
  return CFOwned<const CGImage>(CGImageCreateWithJPEG(8, 8, components, file.get(), false));
}

TEST(PdfImage, HasAJpegFileAsItIs) {
  const ByteList file = test::JpegOf(3);
  int timesAsked = 0;
  for (const auto& provider :
       {test::ProviderOf(file).release(), MakerOf(file, timesAsked).release()}) {
    const CFOwned<const CGDataProvider> owned(provider);
    const Pdf pdf(PdfBytesOf([&](CGContextRef c) { Draw(c, JpegImage(3, owned)); }));
    EXPECT_EQ(LayoutIn(pdf),
              "<< /BitsPerComponent 8 /ColorSpace /DeviceRGB /Filter /DCTDecode /Height 8 "
              "/Subtype /Image /Type /XObject /Width 8 >>");
    const auto stored = ImageIn(pdf).getRawStreamData();
    EXPECT_EQ(ByteList(stored->getBuffer(), stored->getBuffer() + stored->getSize()), file);
  }
}

TEST(PdfImage, ShowsAJpegFileOfOneComponentOrThree) {
  for (const unsigned char components : ByteList{1, 3}) {
    const auto image = JpegImage(components, test::ProviderOf(test::JpegOf(components)));
    EXPECT_EQ(Raster(OnGreen(image)).At(50, 50), (Raster::Color{128, 128, 128}));
  }
}

TEST(PdfImage, OfAJpegFileWithoutBytesIsLeftOut) {
  EXPECT_EQ(test::PdfContentOf([](CGContextRef c) {
              Draw(c, JpegImage(1, test::ProviderOf({})));
              test::FillRect(c, CGRectMake(1, 2, 3, 4));
            }),
            "1 2 3 4 re\nf\n");
}

TEST(PdfImage, OfAnyKindMakesAFileWithoutFault) {
  const std::string bytes = PdfBytesOf([](CGContextRef c) {
    const auto numbers = IndexedOf(9, 1, 2, {1, 2, 3, 250, 251, 252}, {1, 2, 3});
    Draw(c, numbers);
    Draw(c, Masked(numbers, MaskOf(9, 1, {1, 0x80})));
    Draw(c, Masked(numbers, ImageOf(1, 1, 1, {7})));
    Draw(c, MaskOf(9, 1, {1, 0x80}));
    Draw(c, JpegImage(3, test::ProviderOf(test::JpegOf(3))));
  });
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "a.pdf", bytes);
  EXPECT_EQ(test::ComplaintsAbout(folder / "a.pdf"), "");
}

}  // namespace
}  // namespace kelvane

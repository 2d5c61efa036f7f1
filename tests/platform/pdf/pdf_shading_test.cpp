#include "platform/pdf/pdf_shading.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/files.h"
#include "support/pdf.h"
#include "support/raster.h"
#include "support/surface.h"

namespace kelvane {
namespace {

using test::kBluePixel;
using test::kGreenPixel;
using test::kRedPixel;
using test::kWhitePixel;
using test::Pdf;
using test::PdfBytesOf;
using test::Raster;

constexpr CGColor kRed = {1, 0, 0, 1};
constexpr CGColor kGreen = {0, 1, 0, 1};
constexpr CGColor kBlue = {0, 0, 1, 1};

std::string DocumentOf(const CGShading& shading) {
  return PdfBytesOf([&](CGContextRef c) { CGContextDrawShading(c, shading); });
}

QPDFObjectHandle ShadingsOf(const Pdf& pdf) {
  return pdf.Page().getKey("/Resources").getKey("/Shading");
}

/// @return the document's shading; of a mesh what is not made by its data.
std::string StoredShading(const CGShading& shading) {
  const Pdf pdf(DocumentOf(shading));
  QPDFObjectHandle stored = ShadingsOf(pdf).getKey("/Sh1");
  if (!stored.isStream()) return stored.unparseResolved();
  QPDFObjectHandle dictionary = stored.getDict();
  dictionary.removeKey("/Length");
  return dictionary.unparse();
}

/// Bytes as they are easily read.
std::string StoredVertices(const CGTriangleMesh& mesh) {
  const Pdf pdf(DocumentOf(mesh));
  const auto data = ShadingsOf(pdf).getKey("/Sh1").getStreamData(qpdf_dl_all);
  return QPDFObjectHandle::newString(
             std::string(reinterpret_cast<const char*>(data->getBuffer()), data->getSize()))
      .unparseBinary();
}

CGAxialShading Across(std::vector<CGGradientStop> stops) {
  return {{20, 0}, {80, 0}, std::move(stops)};
}

CGAxialShading RedToBlue() {
  return Across({{0, kRed}, {1, kBlue}});
}

CGTriangleMesh Triangle(CGPoint a, CGPoint b, CGPoint c) {
  return {{{a, kRed}, {b, kGreen}, {c, kBlue}}};
}

TEST(PdfAxialShading, IsDrawnByItsName) {
  EXPECT_EQ(Pdf(DocumentOf(RedToBlue())).Content(), "/Sh1 sh\n");
}

TEST(PdfAxialShading, OfTwoColoursHasOneFunction) {
  EXPECT_EQ(StoredShading(RedToBlue()),
            "<< /ColorSpace /DeviceRGB /Coords [ 20 0 80 0 ] /Extend [ true true ] "
            "/Function << /C0 [ 1 0 0 ] /C1 [ 0 0 1 ] /Domain [ 0 1 ] /FunctionType 2 /N 1 >> "
            "/ShadingType 2 >>");
}

TEST(PdfAxialShading, ChangesColourFromStartToEnd) {
  const Raster page(DocumentOf(RedToBlue()));
  EXPECT_EQ(page.At(5, 50), kRedPixel);
  EXPECT_EQ(page.At(95, 50), kBluePixel);
  EXPECT_NEAR(page.At(35, 50)[0], 191, 4);
  EXPECT_NEAR(page.At(35, 50)[2], 64, 4);
}

TEST(PdfAxialShading, StitchesMoreColours) {
  const Raster page(DocumentOf(Across({{0.25F, kRed}, {0.5F, kGreen}, {0.75F, kBlue}})));
  EXPECT_EQ(page.At(30, 50), kRedPixel);
  EXPECT_NEAR(page.At(49, 50)[1], 246, 16);  // renderers paint it in steps
  EXPECT_EQ(page.At(70, 50), kBluePixel);
}

TEST(PdfAxialShading, HasAnEdgeWhereTwoColoursMeet) {
  const Raster page(DocumentOf(Across({{0, kRed}, {0.5F, kRed}, {0.5F, kBlue}, {1, kBlue}})));
  EXPECT_EQ(page.At(48, 50), kRedPixel);
  EXPECT_EQ(page.At(52, 50), kBluePixel);
}

TEST(PdfAxialShading, FillsTheClipAlone) {
  const Raster page(PdfBytesOf([](CGContextRef c) {
    CGContextClipToRect(c, CGRectMake(0, 50, 100, 50));
    CGContextDrawShading(c, RedToBlue());
  }));
  EXPECT_EQ(page.At(5, 25), kRedPixel);
  EXPECT_EQ(page.At(5, 75), kWhitePixel);
}

TEST(PdfAxialShading, IsMixedAsTheStateSays) {
  const Raster page(PdfBytesOf([](CGContextRef c) {
    CGContextSetAlpha(c, 0.5F);
    CGContextDrawShading(c, RedToBlue());
  }));
  EXPECT_EQ(page.At(5, 50)[0], 255);
  EXPECT_NEAR(page.At(5, 50)[1], 128, 1);
}

// Coordinates span the box, and the colours follow them: at the left below, right and above.
TEST(PdfMesh, HasAFlagAPlaceAndAColourForEachCorner) {
  EXPECT_EQ(StoredVertices(Triangle({10, 10}, {60, 10}, {10, 60})),
            "<00"
            "0000"
            "0000"
            "ff0000"
            "00"
            "ffff"
            "0000"
            "00ff00"
            "00"
            "0000"
            "ffff"
            "0000ff>");
}

TEST(PdfMesh, NamesTheBoxThatItsCornersSpan) {
  EXPECT_EQ(StoredShading(Triangle({10, 20}, {60, 20}, {10, 70})),
            "<< /BitsPerComponent 8 /BitsPerCoordinate 16 /BitsPerFlag 8 /ColorSpace /DeviceRGB "
            "/Decode [ 10 60 20 70 0 1 0 1 0 1 ] /Filter /FlateDecode /ShadingType 4 >>");
}

TEST(PdfMesh, HasMoreBitsForALargerBox) {
  const auto bitsFor = [](CGFloat size) {
    const Pdf pdf(DocumentOf(Triangle({0, 0}, {size, 0}, {0, 1})));
    return ShadingsOf(pdf).getKey("/Sh1").getDict().getKey("/BitsPerCoordinate").getIntValue();
  };
  EXPECT_EQ(bitsFor(65), 16);
  EXPECT_EQ(bitsFor(66), 24);
  EXPECT_EQ(bitsFor(16777), 24);
  EXPECT_EQ(bitsFor(16778), 32);
}

TEST(PdfMesh, ShowsEachColourAtItsCorner) {
  for (const CGFloat size : {60.0F, 90.0F, 20000.0F}) {
    const Raster page(DocumentOf({CGTriangleMesh{{{{0, 0}, kRed},
                                                  {{80, 0}, kGreen},
                                                  {{0, 80}, kBlue},
                                                  {{100, 100}, kBlue},
                                                  {{size, 100}, kBlue},
                                                  {{100, size}, kBlue}}}}));
    EXPECT_GT(page.At(2, 97)[0], 235) << size;
    EXPECT_GT(page.At(76, 98)[1], 235) << size;
    EXPECT_GT(page.At(1, 23)[2], 235) << size;
    EXPECT_EQ(page.At(60, 40), kWhitePixel) << size;
  }
}

TEST(PdfMesh, ShowsTheLaterTriangleWhereTwoOverlap) {
  CGTriangleMesh mesh = {{{{0, 0}, kRed}, {{90, 0}, kRed}, {{0, 90}, kRed}}};
  mesh.vertices.insert(mesh.vertices.end(),
                       {{{0, 0}, kGreen}, {{30, 0}, kGreen}, {{0, 30}, kGreen}});
  const Raster page(DocumentOf(mesh));
  EXPECT_EQ(page.At(5, 95), kGreenPixel);
  EXPECT_EQ(page.At(35, 95), kRedPixel);
}

TEST(PdfMesh, IsMixedAsOneWithWhatLiesBelow) {
  const Raster page(PdfBytesOf([](CGContextRef c) {
    test::SetFill(c, 0, 1, 0);
    test::FillRect(c, CGRectMake(0, 0, 100, 50));
    CGContextSetAlpha(c, 0.5F);
    CGContextSetBlendMode(c, kCGBlendModeMultiply);
    CGContextDrawShading(c, CGTriangleMesh{{{{0, 0}, kRed}, {{90, 0}, kRed}, {{0, 90}, kRed}}});
  }));
  EXPECT_EQ(page.At(5, 95)[0], 0);
  EXPECT_NEAR(page.At(5, 95)[1], 128, 1);
  EXPECT_EQ(page.At(5, 45)[0], 255);
  EXPECT_NEAR(page.At(5, 45)[1], 128, 1);
  EXPECT_EQ(page.At(70, 70), kGreenPixel);
  EXPECT_EQ(page.At(70, 45), kWhitePixel);
}

TEST(PdfMesh, OfNoHeightMarksNothing) {
  const Raster page(DocumentOf(Triangle({10, 50}, {50, 50}, {90, 50})));
  EXPECT_EQ(page.At(50, 40), kWhitePixel);
  EXPECT_EQ(page.At(50, 60), kWhitePixel);
}

TEST(PdfShading, OfTheSameColoursIsStoredOnce) {
  const Pdf pdf(PdfBytesOf([](CGContextRef c) {
    for (int i = 0; i < 2; ++i) {
      CGContextDrawShading(c, RedToBlue());
      CGContextDrawShading(c, Triangle({0, 0}, {1, 0}, {0, 1}));
    }
    CGContextDrawShading(c, Triangle({0, 0}, {2, 0}, {0, 2}));  // of the same bytes
  }));
  EXPECT_EQ(ShadingsOf(pdf).getKeys().size(), 3U);
}

TEST(PdfShading, OfAnyKindMakesAFileWithoutFault) {
  const std::string bytes = PdfBytesOf([](CGContextRef c) {
    CGContextDrawShading(c, Across({{0, kRed}, {0.5F, kGreen}, {0.5F, kRed}, {1, kBlue}}));
    CGContextDrawShading(c, Triangle({0, 0}, {1, 0}, {0, 1}));
    CGContextDrawShading(c, Triangle({-3e38F, 0}, {3e38F, 0}, {0, 1}));
  });
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "a.pdf", bytes);
  EXPECT_EQ(test::ComplaintsAbout(folder / "a.pdf"), "");
}

}  // namespace
}  // namespace kelvane

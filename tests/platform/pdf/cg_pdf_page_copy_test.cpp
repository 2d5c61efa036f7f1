#include <set>
#include <string>

#include <gtest/gtest.h>

#include "platform/pdf/cg_pdf_context.h"
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

constexpr CGRect kBox = test::kPageBox;
constexpr CGRect kMark = {{10, 10}, {30, 30}};

CFOwned<CGPDFDocument> DocumentWithARectangle() {
  return test::OpenPdf(PdfBytesOf([](CGContextRef c) { FillRect(c, kMark); }));
}

void Copy(CGContextRef context, const CFOwned<CGPDFDocument>& document, const CGRect& rect) {
  CGContextDrawPDFDocument(context, rect, document.get(), 1);
}

std::string RawContentOf(const Pdf& pdf, std::size_t page = 0) {
  const auto data = pdf.Page(page).getKey("/Contents").getRawStreamData();
  return {reinterpret_cast<const char*>(data->getBuffer()), data->getSize()};
}

TEST(PageCopy, OntoAnUntouchedPageOfItsBoxIsThatPagesContent) {
  const std::string source = PdfBytesOf([](CGContextRef c) { FillRect(c, kMark); });
  const auto document = test::OpenPdf(source);
  const Pdf copy(PdfBytesOf([&](CGContextRef c) { Copy(c, document, kBox); }));
  EXPECT_EQ(RawContentOf(copy), RawContentOf(Pdf(source)));
  EXPECT_FALSE(copy.Page().getKey("/Resources").hasKey("/XObject"));
}

TEST(PageCopy, BringsItsResources) {
  const auto document = test::OpenPdf(PdfBytesOf([](CGContextRef c) {
    test::DrawHelvetica(c, u"Hello", 12, {1, 0, 0, 1, 10, 50});
  }));
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "a.pdf", PdfBytesOf([&](CGContextRef c) { Copy(c, document, kBox); }));
  EXPECT_EQ(test::Run({"pdftotext", folder / "a.pdf", "-"}).output, "Hello\n\n\f");
  EXPECT_EQ(test::ComplaintsAbout(folder / "a.pdf"), "");
}

TEST(PageCopy, OfAContentInSeveralStreamsIsThatPagesContent) {
  const std::string source = PdfBytesOf([](CGContextRef c) {
    for (int i = 0; i < 100000; ++i)
      FillRect(c, kMark);
  });
  const auto document = test::OpenPdf(source);
  const Pdf copy(PdfBytesOf([&](CGContextRef c) { Copy(c, document, kBox); }));
  EXPECT_TRUE(copy.Page().getKey("/Contents").isArray());
  EXPECT_TRUE(copy.Content() == Pdf(source).Content());
}

TEST(PageCopy, OfABlankPageIsBlank) {
  const auto document = test::OpenPdf(PdfBytesOf([](CGContextRef) {}));
  EXPECT_EQ(PdfContentOf([&](CGContextRef c) { Copy(c, document, kBox); }), "");
}

TEST(PageCopy, IsThePagesContentOnLaterPagesToo) {
  const auto document = DocumentWithARectangle();
  const Pdf copy(test::DocumentBytesOf([&](CGContextRef c) {
    CGContextBeginPage(c, &kBox);
    FillRect(c, CGRectMake(1, 2, 3, 4));
    CGContextBeginPage(c, &kBox);
    Copy(c, document, kBox);
  }));
  EXPECT_EQ(copy.Content(0), "1 2 3 4 re\nf\n");
  EXPECT_EQ(copy.Content(1), "10 10 30 30 re\nf\n");
}

TEST(PageCopy, IsThePagesContentWhateverStateWasSetBefore) {
  const auto document = DocumentWithARectangle();
  EXPECT_EQ(PdfContentOf([&](CGContextRef c) {
              test::SetFill(c, 1, 0, 0);
              CGContextSaveGState(c);
              CGContextClipToRect(c, kMark);
              CGContextRestoreGState(c);
              Copy(c, document, kBox);
            }),
            "10 10 30 30 re\nf\n");
}

// Where it has to be a form.

TEST(PageCopy, IntoAnotherRectangleIsAFormFittedIntoIt) {
  const auto document = DocumentWithARectangle();
  EXPECT_EQ(PdfContentOf([&](CGContextRef c) { Copy(c, document, CGRectMake(10, 20, 50, 25)); }),
            "q\n0.5 0 0 0.25 10 20 cm\n/Fm1 Do\nQ\n");
}

TEST(PageCopy, IsOneFormWhereverItIsDrawn) {
  const auto document = DocumentWithARectangle();
  const Pdf copy(test::DocumentBytesOf([&](CGContextRef c) {
    for (int page = 0; page < 2; ++page) {
      CGContextBeginPage(c, &kBox);
      Copy(c, document, CGRectMake(0, 0, 50, 50));
      Copy(c, document, CGRectMake(50, 50, 50, 50));
    }
  }));
  const auto formsOf = [&](std::size_t page) {
    return copy.Page(page).getKey("/Resources").getKey("/XObject");
  };
  EXPECT_EQ(formsOf(0).getKeys(), std::set<std::string>{"/Fm1"});
  EXPECT_EQ(formsOf(0).getKey("/Fm1").getObjGen(), formsOf(1).getKey("/Fm1").getObjGen());
}

TEST(PageCopy, IsAFormOfItsOwnForEachPageOfADocument) {
  const auto document = test::OpenPdf(test::DocumentBytesOf([](CGContextRef c) {
    for (const CGFloat size : {10.0F, 20.0F}) {
      CGContextBeginPage(c, &kBox);
      FillRect(c, CGRectMake(0, 0, size, size));
    }
  }));
  const Pdf copy(PdfBytesOf([&](CGContextRef c) {
    CGContextDrawPDFDocument(c, kMark, document.get(), 1);
    CGContextDrawPDFDocument(c, kMark, document.get(), 2);
  }));
  EXPECT_EQ(copy.Page().getKey("/Resources").getKey("/XObject").getKeys(),
            (std::set<std::string>{"/Fm1", "/Fm2"}));
}

TEST(PageCopy, UnderATransformIsAForm) {
  const auto document = DocumentWithARectangle();
  EXPECT_EQ(PdfContentOf([&](CGContextRef c) {
              CGContextConcatCTM(c, {1, 0, 0, 1, 5, 0});
              Copy(c, document, kBox);
            }),
            "q\n1 0 0 1 5 0 cm\n/Fm1 Do\nQ\n");
}

TEST(PageCopy, OntoAPageOfAnotherBoxIsAForm) {
  const auto document = DocumentWithARectangle();
  const Pdf copy(
      PdfBytesOf([&](CGContextRef c) { Copy(c, document, kBox); }, CGRectMake(0, 0, 200, 100)));
  EXPECT_EQ(copy.Content(), "q\n1 0 0 1 0 0 cm\n/Fm1 Do\nQ\n");
}

TEST(PageCopy, UnderAClipIsAForm) {
  const auto document = DocumentWithARectangle();
  EXPECT_EQ(PdfContentOf([&](CGContextRef c) {
              CGContextClipToRect(c, kMark);
              Copy(c, document, kBox);
            }),
            "q\n10 10 30 30 re\nW n\nq\n1 0 0 1 0 0 cm\n/Fm1 Do\nQ\nQ\n");
}

TEST(PageCopy, AfterAMarkIsAForm) {
  const auto document = DocumentWithARectangle();
  EXPECT_EQ(PdfContentOf([&](CGContextRef c) {
              FillRect(c, CGRectMake(1, 2, 3, 4));
              Copy(c, document, kBox);
            }),
            "1 2 3 4 re\nf\nq\n1 0 0 1 0 0 cm\n/Fm1 Do\nQ\n");
}

TEST(PageCopy, BeforeAMarkIsAFormDrawnFirst) {
  const auto document = DocumentWithARectangle();
  EXPECT_EQ(PdfContentOf([&](CGContextRef c) {
              Copy(c, document, kBox);
              test::SetFill(c, 1, 0, 0);
              CGContextClipToRect(c, kMark);
              FillRect(c, CGRectMake(1, 2, 3, 4));
            }),
            "q\n1 0 0 1 0 0 cm\n/Fm1 Do\nQ\n"
            "q\n10 10 30 30 re\nW n\n1 0 0 rg\n1 2 3 4 re\nf\nQ\n");
}

TEST(PageCopy, BeforeAnotherIsAFormDrawnFirst) {
  const auto first = DocumentWithARectangle();
  const auto second = DocumentWithARectangle();
  EXPECT_EQ(PdfContentOf([&](CGContextRef c) {
              Copy(c, first, kBox);
              Copy(c, second, kBox);
            }),
            "q\n1 0 0 1 0 0 cm\n/Fm1 Do\nQ\nq\n1 0 0 1 0 0 cm\n/Fm2 Do\nQ\n");
}

TEST(PageCopy, AsAFormStartsWithAFreshState) {
  const auto document = DocumentWithARectangle();
  EXPECT_EQ(PdfContentOf([&](CGContextRef c) {
              test::SetFill(c, 1, 0, 0);
              CGContextSetLineWidth(c, 5);
              CGContextAddRect(c, CGRectMake(1, 2, 3, 4));
              CGContextDrawPath(c, kCGPathFillStroke);
              Copy(c, document, kBox);
              FillRect(c, CGRectMake(1, 2, 3, 4));
            }),
            "1 0 0 rg\n5 w\n1 2 3 4 re\nB\n"
            "0 0 0 rg\n1 w\nq\n1 0 0 1 0 0 cm\n/Fm1 Do\nQ\n"
            "1 0 0 rg\n1 2 3 4 re\nf\n");
}

TEST(PageCopy, AsAFormIsDeflatedAndHoldsThePagesContent) {
  const auto document = DocumentWithARectangle();
  const Pdf copy(PdfBytesOf([&](CGContextRef c) { Copy(c, document, CGRectMake(0, 0, 50, 50)); }));
  QPDFObjectHandle form = copy.Page().getKey("/Resources").getKey("/XObject").getKey("/Fm1");
  EXPECT_EQ(form.getDict().getKey("/Filter").unparse(), "/FlateDecode");
  EXPECT_EQ(form.getDict().getKey("/BBox").unparse(), "[ 0 0 100 100 ]");
  const auto data = form.getStreamData(qpdf_dl_all);
  const std::string content(reinterpret_cast<const char*>(data->getBuffer()), data->getSize());
  EXPECT_NE(content.find("10 10 30 30 re\nf\n"), std::string::npos);
}

TEST(PageCopy, ShowsThePageInItsRectangle) {
  const auto document = DocumentWithARectangle();
  const Raster page(
      PdfBytesOf([&](CGContextRef c) { Copy(c, document, CGRectMake(50, 0, 50, 100)); }));
  EXPECT_EQ(page.At(60, 75), (Raster::Color{0, 0, 0}));  // (55..70, 10..40) on the page
  EXPECT_EQ(page.At(75, 75), (Raster::Color{255, 255, 255}));
  EXPECT_EQ(page.At(20, 75), (Raster::Color{255, 255, 255}));
}

void Wipe(void* info, const void* /*data*/, std::size_t size) {
  static_cast<std::string*>(info)->assign(size, '\0');
}

TEST(PageCopy, OutlivesItsDocumentAndItsBytes) {
  const auto image = test::ImageOf(1, 1, 1, {7});
  for (const CGRect& rect : {kBox, CGRectMake(0, 0, 50, 50)}) {
    std::string bytes = PdfBytesOf([&](CGContextRef c) {
      FillRect(c, kMark);
      CGContextDrawImage(c, CGRectMake(20, 20, 60, 60), image.get());
    });
    CFOwned<const CGDataProvider> provider(
        CGDataProviderCreateWithData(&bytes, bytes.data(), bytes.size(), Wipe));
    CFOwned<CGPDFDocument> document(CGPDFDocumentCreateWithProvider(provider.get()));
    provider.reset();
    const Raster page(PdfBytesOf([&](CGContextRef c) {
      Copy(c, document, rect);
      document.reset();
    }));
    EXPECT_EQ(page.At(25, 75), (Raster::Color{7, 7, 7}));
  }
}

TEST(PageCopy, OfANullDocumentOrOfAPageTheDocumentHasNotMarksNothing) {
  const auto document = DocumentWithARectangle();
  EXPECT_EQ(PdfContentOf([&](CGContextRef c) {
              CGContextDrawPDFDocument(c, kBox, nullptr, 1);
              for (const int page : {-1, 0, 2})
                CGContextDrawPDFDocument(c, kBox, document.get(), page);
            }),
            "");
}

TEST(PageCopy, OntoASurfaceOfAnotherKindMarksNothing) {
  const auto document = DocumentWithARectangle();
  EXPECT_EQ(test::TraceOf([&](CGContextRef c) { Copy(c, document, kBox); }), "");
}

}  // namespace
}  // namespace kelvane

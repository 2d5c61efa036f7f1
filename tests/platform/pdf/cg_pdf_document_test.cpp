#include "platform/pdf/cg_pdf_document.h"

#include <string>

#include <gtest/gtest.h>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFWriter.hh>

#include "platform/quartz/cg_context_calls.h"
#include "support/surface.h"

namespace kelvane {
namespace {

using test::OpenPdf;

std::string OnePage() {
  return test::PdfBytesOf([](CGContextRef c) { test::FillRect(c, CGRectMake(1, 2, 3, 4)); });
}

TEST(CGPDFDocument, IsNullWithoutAProvider) {
  EXPECT_EQ(CGPDFDocumentCreateWithProvider(nullptr), nullptr);
}

TEST(CGPDFDocument, IsNullForBytesThatAreNoPdf) {
  EXPECT_EQ(OpenPdf(""), nullptr);
  EXPECT_EQ(OpenPdf("garbage"), nullptr);
  EXPECT_EQ(OpenPdf(std::string(10000, '\0')), nullptr);
  EXPECT_EQ(OpenPdf("%PDF-1.4\n%%EOF\n"), nullptr);
}

TEST(CGPDFDocument, IsNullForAFileCutInHalf) {
  const std::string whole = OnePage();
  EXPECT_EQ(OpenPdf(whole.substr(0, whole.size() / 2)), nullptr);
}

TEST(CGPDFDocument, IsNullOrWholeWhereverTheFileIsCut) {
  const std::string whole = OnePage();
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const auto document = OpenPdf(whole.substr(0, size));
    if (!document) continue;
    ASSERT_EQ(CGPDFDocumentGetNumberOfPages(document.get()), 1U) << "cut to " << size;
    EXPECT_EQ(CGPDFPageGetBoxRect(CGPDFDocumentGetPage(document.get(), 1), kCGPDFMediaBox),
              test::kPageBox);
  }
}

TEST(CGPDFDocument, CountsItsPages) {
  const auto document = OpenPdf(test::DocumentBytesOf([](CGContextRef c) {
    for (int i = 0; i < 3; ++i)
      CGContextBeginPage(c, &test::kPageBox);
  }));
  EXPECT_EQ(CGPDFDocumentGetNumberOfPages(document.get()), 3U);
}

TEST(CGPDFDocument, NumbersItsPagesFromOne) {
  const auto document = OpenPdf(OnePage());
  EXPECT_NE(CGPDFDocumentGetPage(document.get(), 1), nullptr);
  for (const std::size_t number : {std::size_t{0}, std::size_t{2}, ~std::size_t{0}}) {
    EXPECT_EQ(CGPDFDocumentGetPage(document.get(), number), nullptr) << number;
  }
}

/// A document of one page; the entries go into the page tree's root and into the page.
CFOwned<CGPDFDocument> DocumentWith(const std::string& treeEntries,
                                    const std::string& pageEntries) {
  QPDF pdf;
  pdf.emptyPDF();
  pdf.addPage(
      pdf.makeIndirectObject(QPDFObjectHandle::parse("<< /Type /Page " + pageEntries + " >>")),
      false);
  auto entries = QPDFObjectHandle::parse("<< " + treeEntries + " >>");
  for (const std::string& key : entries.getKeys()) {
    pdf.getRoot().getKey("/Pages").replaceKey(key, entries.getKey(key));
  }
  QPDFWriter writer(pdf);
  writer.setOutputMemory();
  writer.write();
  const auto bytes = writer.getBufferSharedPointer();
  return OpenPdf({reinterpret_cast<const char*>(bytes->getBuffer()), bytes->getSize()});
}

CGRect BoxOf(const std::string& treeEntries, const std::string& pageEntries) {
  const auto document = DocumentWith(treeEntries, pageEntries);
  return CGPDFPageGetBoxRect(CGPDFDocumentGetPage(document.get(), 1), kCGPDFMediaBox);
}

TEST(CGPDFPageGetBoxRect, ReadsThePagesBox) {
  EXPECT_EQ(BoxOf("", "/MediaBox [ 10 -220 110.5 -20 ]"), CGRectMake(10, -220, 100.5F, 200));
}

TEST(CGPDFPageGetBoxRect, TakesAnInheritedBox) {
  EXPECT_EQ(BoxOf("/MediaBox [ 0 0 30 40 ]", ""), CGRectMake(0, 0, 30, 40));
}

TEST(CGPDFPageGetBoxRect, PrefersThePagesOwnBox) {
  EXPECT_EQ(BoxOf("/MediaBox [ 0 0 30 40 ]", "/MediaBox [ 0 0 10 20 ]"), CGRectMake(0, 0, 10, 20));
}

TEST(CGPDFPageGetBoxRect, PutsReversedCornersInOrder) {
  EXPECT_EQ(BoxOf("", "/MediaBox [ 110 -20 10 -220 ]"), CGRectMake(10, -220, 100, 200));
}

TEST(CGPDFPageGetBoxRect, IsEmptyForABoxOfNoUse) {
  for (const char* entries :
       {"", "/MediaBox [ 0 0 30 ]", "/MediaBox 7", "/MediaBox [ 0 0 /A 40 ]"}) {
    EXPECT_EQ(BoxOf("", entries), CGRect{}) << entries;
  }
}

TEST(CGPDFPageGetBoxRect, GivesBackTheBoxThePageWasMadeWith) {
  for (const CGRect& box : {CGRectMake(0.1F, 0.2F, 0.3F, 100.7F), CGRectMake(1e7F, -1e7F, 1, 3),
                            CGRectMake(-2147483648.0F, 2147483648.0F, 4294967296.0F, 1)}) {
    const auto document = OpenPdf(test::PdfBytesOf([](CGContextRef) {}, box));
    EXPECT_EQ(CGPDFPageGetBoxRect(CGPDFDocumentGetPage(document.get(), 1), kCGPDFMediaBox), box);
  }
}

}  // namespace
}  // namespace kelvane

#include "platform/pdf/pdf_writer.h"

#include <string>

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/files.h"
#include "support/pdf.h"
#include "support/surface.h"
#include "support/text.h"

namespace kelvane {
namespace {

using test::ImageOf;
using test::Pdf;
using test::PdfBytesOf;

// The file.

std::string DocumentOfEverything() {
  const auto image = ImageOf(2, 1, 3, {1, 2, 3, 4, 5, 6});
  return PdfBytesOf([&](CGContextRef c) {
    test::SetFill(c, 1, 0, 0);
    CGContextClipToRect(c, CGRectMake(0, 0, 50, 50));
    test::FillRect(c, CGRectMake(1, 2, 3, 4));
    CGContextDrawImage(c, CGRectMake(10, 20, 30, 40), image.get());
    test::DrawHelvetica(c, u"Hello", 12);
  });
}

TEST(PdfWriter, WritesAFileWithoutFault) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "a.pdf", DocumentOfEverything());
  EXPECT_EQ(test::ComplaintsAbout(folder / "a.pdf"), "");
}

TEST(PdfWriter, WritesVersion14) {
  EXPECT_EQ(DocumentOfEverything().substr(0, 9), "%PDF-1.4\n");
}

TEST(PdfWriter, WritesAClassicCrossReference) {
  const std::string bytes = DocumentOfEverything();
  EXPECT_NE(bytes.find("\nxref\n0 "), std::string::npos);
  EXPECT_EQ(bytes.find("/ObjStm"), std::string::npos);
  EXPECT_EQ(bytes.find("/XRef"), std::string::npos);
}

TEST(PdfWriter, NamesTheProducer) {
  const Pdf pdf(DocumentOfEverything());
  const std::string producer =
      pdf.Document().getTrailer().getKey("/Info").getKey("/Producer").getUTF8Value();
  EXPECT_EQ(producer.substr(0, 8), "kelvane ");
}

TEST(PdfWriter, WritesNoDates) {
  const std::string bytes = DocumentOfEverything();
  EXPECT_EQ(bytes.find("Date"), std::string::npos);
  EXPECT_EQ(bytes.find("(D:"), std::string::npos);
}

TEST(PdfWriter, WritesTheSameBytesForTheSamePage) {
  EXPECT_EQ(DocumentOfEverything(), DocumentOfEverything());
}

std::string IdOf(const std::string& bytes) {
  return Pdf(bytes).Document().getTrailer().getKey("/ID").unparse();
}

TEST(PdfWriter, TakesTheIdFromTheContent) {
  const auto lineTo = [](CGFloat x) {
    return PdfBytesOf([x](CGContextRef c) { test::StrokeLine(c, {0, 0}, {x, 0}); });
  };
  EXPECT_EQ(IdOf(lineTo(1)), IdOf(lineTo(1)));
  EXPECT_NE(IdOf(lineTo(1)), IdOf(lineTo(2)));
}

TEST(PdfWriter, LeavesABlankPageWithoutContents) {
  const Pdf pdf(PdfBytesOf([](CGContextRef) {}));
  EXPECT_EQ(pdf.PageCount(), 1U);
  EXPECT_FALSE(pdf.Page().hasKey("/Contents"));
}

// The page box.

struct BoxCase {
  CGRect box;
  const char* mediaBox;
};

class MediaBox : public testing::TestWithParam<BoxCase> {};

TEST_P(MediaBox, IsThePageBox) {
  const BoxCase& row = GetParam();
  EXPECT_EQ(Pdf(PdfBytesOf([](CGContextRef) {}, row.box)).MediaBox(), row.mediaBox);
}

INSTANTIATE_TEST_SUITE_P(
    Boxes, MediaBox,
    testing::Values(BoxCase{CGRectMake(0, 0, 100, 50), "[ 0 0 100 50 ]"},
                    BoxCase{CGRectMake(10, -220, 100, 200), "[ 10 -220 110 -20 ]"},
                    BoxCase{CGRectMake(-5, -5, 5, 5), "[ -5 -5 0 0 ]"},
                    BoxCase{CGRectMake(0.5F, -0.25F, 10.25F, 20), "[ 0.5 -0.25 10.75 19.75 ]"},
                    BoxCase{CGRectMake(0.1F, 0, 100, 0.2F), "[ 0.1 0 100.10000000149012 0.2 ]"},
                    BoxCase{CGRectMake(16777216, 0, 1, 1), "[ 16777216 0 16777217 1 ]"},
                    BoxCase{CGRectMake(-2147483648.0F, -2147483648.0F, 4294967296.0F, 1),
                            "[ -2147483648 -2147483648 2147483648 -2147483647 ]"}));

TEST(MediaBox, OfAnySizeMakesAFileWithoutFault) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "a.pdf", PdfBytesOf([](CGContextRef) {}, CGRectMake(0, 0, 3e38F, 1)));
  EXPECT_EQ(test::ComplaintsAbout(folder / "a.pdf"), "");
}

}  // namespace
}  // namespace kelvane

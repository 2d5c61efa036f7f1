// What a document says of itself.

#include <string>

#include <gtest/gtest.h>

#include "platform/pdf/cg_pdf_context.h"
#include "platform/quartz/cg_context_calls.h"
#include "support/files.h"
#include "support/pdf.h"
#include "support/process.h"
#include "support/surface.h"

namespace kelvane {
namespace {

using test::Pdf;

/// A document of one blank page.
std::string DocumentThatSays(const CFDictionary* information) {
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithCFData(data.get()));
  const CFOwned<CGContext> surface(
      CGPDFContextCreate(consumer.get(), &test::kPageBox, information));
  CGContextBeginPage(surface.get(), &test::kPageBox);
  CGContextEndPage(surface.get());
  CGPDFContextClose(surface.get());
  return {data->bytes.begin(), data->bytes.end()};
}

std::string DocumentOf(std::string_view key, const std::u16string& text) {
  CFDictionary information;
  information.texts.emplace(key, text);
  return DocumentThatSays(&information);
}

QPDFObjectHandle InformationIn(const Pdf& pdf) {
  return pdf.Document().getTrailer().getKey("/Info");
}

/// The bytes of a title as the file stores them.
std::string StoredTitle(const std::u16string& title) {
  const Pdf pdf(DocumentOf(kCGPDFContextTitle, title));
  return InformationIn(pdf).getKey("/Title").getStringValue();
}

/// The title as a reader has it, in UTF-8.
std::string ReadTitle(const std::u16string& title) {
  const Pdf pdf(DocumentOf(kCGPDFContextTitle, title));
  return InformationIn(pdf).getKey("/Title").getUTF8Value();
}

TEST(CGPDFInformation, HoldsTitleAndCreator) {
  CFDictionary information;
  information.texts = {{kCGPDFContextTitle, u"Plan"}, {kCGPDFContextCreator, u"Draw 2"}};
  const Pdf pdf(DocumentThatSays(&information));
  EXPECT_EQ(InformationIn(pdf).getKey("/Title").getUTF8Value(), "Plan");
  EXPECT_EQ(InformationIn(pdf).getKey("/Creator").getUTF8Value(), "Draw 2");
}

TEST(CGPDFInformation, HoldsNothingThatIsNotGiven) {
  for (const std::string& document :
       {DocumentThatSays(nullptr), DocumentOf(kCGPDFContextTitle, u"")}) {
    const Pdf pdf(document);
    EXPECT_FALSE(InformationIn(pdf).hasKey("/Title"));
    EXPECT_FALSE(InformationIn(pdf).hasKey("/Creator"));
    EXPECT_TRUE(InformationIn(pdf).hasKey("/Producer"));
  }
}

TEST(CGPDFInformation, HasNothingOfOtherKeys) {
  const Pdf pdf(DocumentOf("/Author", u"Nobody"));
  EXPECT_FALSE(InformationIn(pdf).hasKey("/Author"));
}

TEST(CGPDFInformation, IsStoredAByteACharacterWhereThatWillDo) {
  EXPECT_EQ(StoredTitle(u"Gr\u00F6\u00DFe"),
            "Gr\xF6\xDF"
            "e");
}

TEST(CGPDFInformation, IsStoredInUtf16WhereItMustBe) {
  EXPECT_EQ(StoredTitle(u"\u56FE"), "\xFE\xFF\x56\xFE");
}

TEST(CGPDFInformation, ReadsBackAsItWasGiven) {
  EXPECT_EQ(ReadTitle(u"a (b) \\ c"), "a (b) \\ c");
  EXPECT_EQ(ReadTitle(u"\u20AC \u2022"), "\u20AC \u2022");
  EXPECT_EQ(ReadTitle(u"\U0001F600"), "\U0001F600");
}

// Stored a byte a character, these would begin like UTF-16 and like UTF-8.
TEST(CGPDFInformation, ReadsBackWhenItLooksLikeAnotherEncoding) {
  EXPECT_EQ(ReadTitle(u"\u00FE\u00FFab"), "\u00FE\u00FFab");
  EXPECT_EQ(ReadTitle(u"\u00EF\u00BB\u00BFab"), "\u00EF\u00BB\u00BFab");
}

TEST(CGPDFInformation, HasAReplacementForHalfACharacter) {
  EXPECT_EQ(ReadTitle(u"a\xD800"), "a\uFFFD");
}

TEST(CGPDFInformation, LeavesTheFileWithoutFault) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "a.pdf", DocumentOf(kCGPDFContextTitle, u"\u56FE (1)"));
  EXPECT_EQ(test::ComplaintsAbout(folder / "a.pdf"), "");
}

TEST(CGPDFInformation, IsFoundByAnotherReader) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "a.pdf", DocumentOf(kCGPDFContextTitle, u"Gr\u00F6\u00DFe \u56FE"));
  EXPECT_NE(test::Run({"pdfinfo", "-enc", "UTF-8", folder / "a.pdf"})
                .output.find("Gr\u00F6\u00DFe \u56FE\n"),
            std::string::npos);
}

TEST(CGPDFInformation, GivesTheSameBytesForTheSameTexts) {
  EXPECT_EQ(DocumentOf(kCGPDFContextTitle, u"Plan"), DocumentOf(kCGPDFContextTitle, u"Plan"));
}

}  // namespace
}  // namespace kelvane

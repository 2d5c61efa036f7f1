#include <algorithm>
#include <string>
#include <vector>

#import <AppKit/NSPDFImageRep.h>
#import <Foundation/NSArray.h>
#import <Foundation/NSException.h>
#include <gtest/gtest.h>

#import <kelvane/torvi_emf_image_rep.h>

#include "support/appkit/appkit.h"
#include "support/appkit/replaced_method.h"
#include "support/library.h"
#include "support/metafile.h"

namespace kelvane::test {
namespace {

using Block = std::vector<unsigned char>;

constexpr std::size_t kShortest = 88;

/// The first 88 bytes of a metafile with other bytes from `offset` on.
Block HeaderWith(std::size_t offset, const Block& bytes) {
  Block header = Metafile().Build();
  header.resize(kShortest);
  std::copy(bytes.begin(), bytes.end(), header.begin() + static_cast<std::ptrdiff_t>(offset));
  return header;
}

bool Accepts(const Block& bytes) {
  return [TorviEMFImageRep canInitWithData:DataOf(bytes)] == YES;
}

Block Wide() {
  return Metafile().Bounds(-20, 10, 180, 60).Rectangle({0, 20, 50, 40}).Build();
}

/// Data with the signature of a metafile that cannot be converted: its records never end.
Block Unconvertible() {
  return HeaderWith(0, {});
}

using TheSignatureTest = AppKitTest;

TEST_F(TheSignatureTest, AcceptsAHeaderOf88Bytes) {
  EXPECT_TRUE(Accepts(HeaderWith(0, {})));
}

TEST_F(TheSignatureTest, RefusesAHeaderOf87Bytes) {
  Block header = HeaderWith(0, {});
  header.pop_back();
  EXPECT_FALSE(Accepts(header));
}

TEST_F(TheSignatureTest, RefusesNil) {
  EXPECT_EQ([TorviEMFImageRep canInitWithData:nil], NO);
}

TEST_F(TheSignatureTest, RefusesNoData) {
  EXPECT_FALSE(Accepts({}));
}

TEST_F(TheSignatureTest, RefusesAnotherRecordType) {
  for (const std::size_t byte : {0U, 1U, 2U, 3U}) {
    EXPECT_FALSE(Accepts(HeaderWith(byte, {2}))) << byte;
  }
}

TEST_F(TheSignatureTest, RefusesAnotherSignature) {
  for (const std::size_t byte : {40U, 41U, 42U, 43U}) {
    EXPECT_FALSE(Accepts(HeaderWith(byte, {'X'}))) << byte;
  }
}

TEST_F(TheSignatureTest, AcceptsTwoVersions) {
  EXPECT_TRUE(Accepts(HeaderWith(44, {0, 0, 1, 0})));
  EXPECT_TRUE(Accepts(HeaderWith(44, {0, 3, 0, 0})));
}

TEST_F(TheSignatureTest, RefusesOtherVersions) {
  EXPECT_FALSE(Accepts(HeaderWith(44, {0, 0, 3, 0})));
  EXPECT_FALSE(Accepts(HeaderWith(44, {0, 3, 1, 0})));
  EXPECT_FALSE(Accepts(HeaderWith(44, {0, 0, 0, 1})));
  EXPECT_FALSE(Accepts(HeaderWith(44, {1, 0, 1, 0})));
}

TEST_F(TheSignatureTest, DoesNotLookAtRecordSizes) {
  EXPECT_TRUE(Accepts(HeaderWith(4, {0, 0, 0, 0})));
}

using TheImageClass = AppKitTest;

TEST_F(TheImageClass, NamesOneTypeAndOneExtension) {
  EXPECT_EQ([[TorviEMFImageRep imageUnfilteredTypes] count], 1U);
  EXPECT_TRUE([[TorviEMFImageRep imageUnfilteredTypes]
      isEqual:[NSArray arrayWithObject:@"com.microsoft.metafile.emf"]]);
  EXPECT_TRUE(
      [[TorviEMFImageRep imageUnfilteredFileTypes] isEqual:[NSArray arrayWithObject:@"emf"]]);
}

TEST_F(TheImageClass, TakesItsSizeFromThePage) {
  TorviEMFImageRep* image = [[[TorviEMFImageRep alloc] initWithData:DataOf(Wide())] autorelease];
  EXPECT_EQ([image size].width, 200);
  EXPECT_EQ([image size].height, 50);
  EXPECT_TRUE(NSEqualSizes([[image pdfImageRep] size], [image size]));
}

TEST_F(TheImageClass, HoldsThePdfThatTheLibraryMakes) {
  TorviEMFImageRep* image = [[[TorviEMFImageRep alloc] initWithData:DataOf(Wide())] autorelease];
  const std::string pdf = ConvertInMemory(Wide()).output;
  EXPECT_TRUE([[[image pdfImageRep] PDFRepresentation] isEqual:[NSData dataWithBytes:pdf.data()
                                                                              length:pdf.size()]]);
}

TEST_F(TheImageClass, GivesThePdfRepresentationForData) {
  NSImageRep* image = [TorviEMFImageRep imageRepWithData:DataOf(Wide())];
  EXPECT_TRUE([image isKindOfClass:[NSPDFImageRep class]]);
  EXPECT_FALSE([image isKindOfClass:[TorviEMFImageRep class]]);
  EXPECT_EQ([image size].width, 200);
}

TEST_F(TheImageClass, MakesCopiesThatOutliveIt) {
  TorviEMFImageRep* image = [[TorviEMFImageRep alloc] initWithData:DataOf(Wide())];
  TorviEMFImageRep* copy = [image copy];
  [image release];
  EXPECT_EQ([[copy pdfImageRep] size].width, 200);
  [copy release];
}

using AFailure = AppKitTest;

TEST_F(AFailure, GivesNilForDataThatIsAcceptedButNotConverted) {
  ASSERT_TRUE(Accepts(Unconvertible()));
  EXPECT_EQ([[TorviEMFImageRep alloc] initWithData:DataOf(Unconvertible())], nil);
  EXPECT_EQ([TorviEMFImageRep imageRepWithData:DataOf(Unconvertible())], nil);
}

TEST_F(AFailure, GivesNilForAPageWithoutArea) {
  const Block bytes = Metafile().Bounds(5, 5, 5, 90).Build();
  ASSERT_TRUE(Accepts(bytes));
  EXPECT_EQ([TorviEMFImageRep imageRepWithData:DataOf(bytes)], nil);
}

TEST_F(AFailure, GivesNilForNilAndForNoData) {
  testing::internal::CaptureStdout();
  EXPECT_EQ([TorviEMFImageRep imageRepWithData:nil], nil);
  EXPECT_EQ([TorviEMFImageRep imageRepWithData:[NSData data]], nil);
  testing::internal::GetCapturedStdout();  // the library's line about each header
}

id GiveNothing(id self, SEL /*name*/, NSData* /*data*/) {
  [self release];
  return nil;
}

id Raise(id self, SEL /*name*/, NSData* /*data*/) {
  [self release];
  [NSException raise:NSGenericException format:@"refused"];
  return nil;
}

TEST_F(AFailure, GivesNilWhenThePdfCannotBeRead) {
  const ReplacedMethod method("KelvanePDFImageRep", @selector(initWithData:), GiveNothing);
  EXPECT_EQ([[TorviEMFImageRep alloc] initWithData:DataOf(Wide())], nil);
  EXPECT_EQ([TorviEMFImageRep imageRepWithData:DataOf(Wide())], nil);
}

TEST_F(AFailure, GivesNilWhenReadingThePdfRaises) {
  const ReplacedMethod method("KelvanePDFImageRep", @selector(initWithData:), Raise);
  EXPECT_EQ([[TorviEMFImageRep alloc] initWithData:DataOf(Wide())], nil);
  EXPECT_EQ([TorviEMFImageRep imageRepWithData:DataOf(Wide())], nil);
}

}  // namespace
}  // namespace kelvane::test

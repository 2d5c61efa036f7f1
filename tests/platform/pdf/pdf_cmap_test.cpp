#include "platform/pdf/pdf_cmap.h"

#include <gmock/gmock.h>

namespace kelvane {
namespace {

using testing::HasSubstr;
using testing::Not;

TEST(ToUnicodeMap, LeadsFromCodeToText) {
  ToUnicodeMap map;
  map.Add(1, u"A");
  EXPECT_THAT(map.Text(), HasSubstr("1 beginbfchar\n<0001> <0041>\nendbfchar\n"));
}

TEST(ToUnicodeMap, HoldsTextOfManyUnits) {
  ToUnicodeMap map;
  map.Add(2, u"\U0001D11Ei");
  EXPECT_THAT(map.Text(), HasSubstr("<0002> <D834DD1E0069>\n"));
}

TEST(ToUnicodeMap, LeavesOutACodeWithoutText) {
  ToUnicodeMap map;
  map.Add(3, u"");
  EXPECT_THAT(map.Text(), Not(HasSubstr("bfchar")));
}

TEST(ToUnicodeMap, StartsABlockAfterAHundredCodes) {
  ToUnicodeMap map;
  for (std::uint16_t code = 1; code <= 101; ++code)
    map.Add(code, u"A");
  EXPECT_THAT(map.Text(), HasSubstr("<0064> <0041>\nendbfchar\n1 beginbfchar\n<0065> <0041>\n"));
}

TEST(ToUnicodeMap, CutsTextThatNoReaderTakes) {
  ToUnicodeMap map;
  map.Add(1, std::u16string(300, u'A'));
  EXPECT_LT(map.Text().size(), 256U * 4 + 400);
}

TEST(EncodingMap, LeadsFromCodesToIdentifiers) {
  EncodingMap map;
  map.Add(3, 3);
  map.Add(0xFFFF, 3);
  EXPECT_THAT(map.Text(), HasSubstr("2 begincidchar\n<0003> 3\n<FFFF> 3\nendcidchar\n"));
}

TEST(EncodingMap, SaysItsName) {
  EXPECT_THAT(EncodingMap().Text(), HasSubstr(std::string("/CMapName /") + EncodingMap::kName));
}

}  // namespace
}  // namespace kelvane

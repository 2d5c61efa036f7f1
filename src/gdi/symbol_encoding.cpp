#include "gdi/symbol_encoding.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "gdi/face_name.h"
#include "gdi/symbol_tables.h"

namespace kelvane {
namespace {

constexpr char16_t kFirstCode = 0x20;
constexpr char16_t kPrivateUse = 0xF000;  // where fonts have their codes as characters

struct SymbolFace {
  std::u16string_view name;
  const SymbolEncoding* encoding;
};

constexpr SymbolFace kSymbolFaces[] = {
    {u"Symbol", &kSymbol},
    {u"Symbol MT", &kSymbol},
    {u"SymbolMT", &kSymbol},
    {u"SymbolPS", &kSymbol},
    {u"Standard Symbols PS", &kSymbol},
    {u"StandardSymbolsPS", &kSymbol},
    {u"Standard Symbols L", &kSymbol},
    {u"MT Symbol", &kSymbol},      // of equation editors, as are the next
    {u"Euclid Symbol", &kSymbol},  // has more beyond, where its characters are not known
    {u"MT Extra", &kMTExtra},
    {u"Euclid Extra", &kMTExtra},
    {u"ZapfDingbats", &kDingbats},
    {u"Zapf Dingbats", &kDingbats},
    {u"ITC Zapf Dingbats", &kDingbats},
    {u"Monotype Sorts", &kDingbats},
    {u"D050000L", &kDingbats},
    {u"Dingbats", &kDingbats},
    {u"Wingdings", &kWingdings},
    {u"Wingdings 2", &kWingdings2},
    {u"Wingdings 3", &kWingdings3},
    {u"Webdings", &kWebdings},
};

}  // namespace

char32_t SymbolEncoding::CharacterOf(char16_t unit) const {
  const auto code = static_cast<std::size_t>(unit < kPrivateUse ? unit : unit - kPrivateUse);
  if (code < kFirstCode || code - kFirstCode >= characters.size()) return 0;
  return characters[code - kFirstCode];
}

const SymbolEncoding* FindSymbolEncoding(std::u16string_view faceName) {
  const auto* face = std::ranges::find_if(kSymbolFaces, [faceName](const SymbolFace& each) {
    return IsSameFaceName(each.name, faceName);
  });
  return face != std::end(kSymbolFaces) ? face->encoding : nullptr;
}

}  // namespace kelvane

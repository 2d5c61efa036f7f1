#pragma once

#include "gdi/symbol_encoding.h"

namespace kelvane {

// The fonts of symbols. A character that only few fonts have gives way to an older one of the same
// shape, even if its weight, its size or the head of its arrow is another: a plain arrow tells more
// than none.

extern const SymbolEncoding kSymbol;
extern const SymbolEncoding kMTExtra;
extern const SymbolEncoding kDingbats;
extern const SymbolEncoding kWingdings;
extern const SymbolEncoding kWingdings2;
extern const SymbolEncoding kWingdings3;
extern const SymbolEncoding kWebdings;

}  // namespace kelvane

#include "classic/text/text_records.h"

#include <string_view>

#include "classic/context/abstract_context.h"
#include "classic/reader/reader.h"
#include "classic/text/text_output.h"

namespace kelvane {
namespace {

std::u16string UnitsOf(const std::vector<std::uint16_t>& text) {
  return {text.begin(), text.end()};
}

std::u16string UnitsOf(const std::vector<char>& text) {
  std::u16string units(text.size(), u'\0');  // which shows nothing
  for (std::size_t i = 0; i < text.size() / 2; ++i) {
    const auto high = static_cast<unsigned char>(text[2 * i]);
    const auto low = static_cast<unsigned char>(text[2 * i + 1]);
    units[i] = static_cast<char16_t>(high << 8 | low);
  }
  return units;
}

}  // namespace

template <class T>
void ExtTextOutRecord<T>::drawToPDF(AbstractContext& context) const {
  DrawText(context, UnitsOf(text), block.reference, bounds, spacing);
}

template <class T>
void ExtTextOutRecord<T>::read(Reader& reader) {
  reader.readAll(bounds, graphicsMode, xScale, yScale, block);
  if (block.stringOffset != 0) {
    reader.readList(text, block.characterCount);
    // Padding is that of UTF-16, whatever T is.
    std::uint16_t padding = 0;
    if (block.characterCount % 2 != 0) reader.read(padding);
  }
  if (block.spacingOffset != 0) reader.readList(spacing, block.characterCount);
}

template class ExtTextOutRecord<char>;
template class ExtTextOutRecord<std::uint16_t>;

}  // namespace kelvane

#pragma once

#include <string>
#include <string_view>

#include "gdi/font_book.h"
#include "gdi/text_output.h"
#include "gdi/written_text.h"
#include "metafile/gdi_objects.h"

namespace kelvane {

/// Turns units, with their advances, into what the face can show: numbers of glyphs of another face
/// and codes of symbols into characters.
/// @param areGlyphs  the units are numbers.
void InterpretText(bool areGlyphs, const TextFont& font, WrittenText& text);

/// Reads the text of a call.
/// @param placing  its advances are for as many units.
/// @param text     what was in it goes.
void ReadText(const TextPlacing& placing, std::u16string units, const TextFont& font,
              WrittenText& text);

/// The same of bytes in the code page of the font, each of which has an advance.
void ReadText(const TextPlacing& placing, std::string_view bytes, const LogFont& asked,
              const TextFont& font, WrittenText& text);

}  // namespace kelvane

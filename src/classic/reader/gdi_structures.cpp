#include "classic/reader/gdi_structures.h"

#include "classic/reader/reader.h"

namespace kelvane {

void Reader::read(LogicalPen& pen) {
  readAll(pen.style, pen.width, pen.color);
}

void Reader::read(LogicalBrush& brush) {
  readAll(brush.style, brush.color, brush.hatch);
}

void Reader::read(ExtLogPen& pen) {
  readAll(pen.style, pen.width, pen.brushStyle, pen.color, pen.hatch, pen.styleEntryCount,
          pen.styleEntry);
}

void Reader::read(TextW& text) {
  readAll(text.reference, text.characterCount, text.stringOffset, text.options, text.rectangle,
          text.spacingOffset);
}

void Reader::read(LogFontW& font) {
  constexpr int kFaceNameUnits = 32;
  readAll(font.lfHeight, font.lfWidth, font.lfEscapement, font.lfOrientation, font.lfWeight,
          font.lfItalic, font.lfUnderline, font.lfStrikeOut, font.lfCharSet, font.lfOutPrecision,
          font.lfClipPrecision, font.lfQuality, font.lfPitchAndFamily);
  for (int i = 0; i < kFaceNameUnits; ++i) {
    std::uint16_t unit = 0;
    read(unit);
    font.lfFaceName += static_cast<char16_t>(unit);
  }
}

void Reader::read(PANOSE& panose) {
  readAll(panose.bFamilyType, panose.bSerifStyle, panose.bWeight, panose.bProportion,
          panose.bContrast, panose.bStrokeVariation, panose.bArmStyle, panose.bLetterform,
          panose.bMidline, panose.bXHeight);
}

void Reader::read(ExtLogFontW& font) {
  readAll(font.font, font.fullName, font.style, font.version, font.styleSize, font.match,
          font.reserved, font.vendorId, font.culture, font.panose, font.padding);
}

}  // namespace kelvane

#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <utility>

#include "platform/corefoundation/cf_base.h"
#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_path.h"

namespace kelvane {

/// The number of a glyph in its face; 0 is the box drawn for what the face lacks.
using CGGlyph = std::uint16_t;

/// How a face's outlines are stored, which decides how a document carries them.
enum class CGFontOutlines : std::uint8_t {
  kStandard,  // not at all: one of the faces that every reader of documents has
  kTrueType,
  kCompact,   // CFF
  kCompact2,  // CFF2
  kNone,      // bitmaps are all there is
};

/// How far lines of text reach from their baseline, and how far they stand apart beyond that.
struct CGFontExtent {
  int ascent = 0;
  int descent = 0;  // below 0 for what hangs below the baseline
  int lineGap = 0;
};

/// A line drawn along text.
struct CGFontRule {
  int top = 0;  // from the baseline
  int thickness = 0;
};

/// What a face says of itself. Lengths are its own units, y upwards.
struct CGFontDescription {
  std::string postScriptName;  // letters, digits and -+._ only
  CGFontOutlines outlines = CGFontOutlines::kStandard;
  unsigned unitsPerEm = 1000;
  std::uint16_t licence = 0;  // what a document may do with the face (OpenType, "OS/2 - fsType")
  bool isFixedPitch = false;
  bool isSerif = false;
  bool isItalic = false;
  bool hasSymbolCodes = false;  // glyphs go by codes of the face's own, from U+F000 on
  float italicAngle = 0;        // degrees, counter-clockwise from the vertical
  int ascent = 0;               // as the face prefers to be set
  int descent = 0;              // below 0 for what hangs below the baseline
  int capHeight = 0;            // 0 when the face does not say
  int weight = 0;               // 400 for regular, 700 for bold; 0 when the face does not say
  int averageWidth = 0;         // of advances, by a rule that changed; 0 when the face does not say
  int left = 0, bottom = 0, right = 0, top = 0;  // of all glyphs laid over each other

  // As the face's tables have them; 0 where it lacks the table.
  CGFontExtent header = {};       // hhea
  CGFontExtent typographic = {};  // OS/2, sTypo
  CGFontExtent windows = {};      // OS/2, usWin, which knows no gap
  CGFontRule underline = {};      // post
  CGFontRule strikeOut = {};      // OS/2
};

/// Tells whether a kind of output can show a face. It goes by the description alone, so that what
/// it said once may be remembered.
using CGFontFilter = bool (*)(const CGFontDescription& face);

/// The filter of an output that can show whatever there is.
inline bool AnyFont(const CGFontDescription& /*face*/) {
  return true;
}

/// A face that glyphs are drawn from. It never changes and may be used by many threads at once.
class CGFont : public CFObject {
 public:
  explicit CGFont(CGFontDescription description) : description_(std::move(description)) {}

  [[nodiscard]] const CGFontDescription& Description() const { return description_; }

  /// @return how far the pen moves after the glyph, in ems; 0 for a glyph the face does not have.
  [[nodiscard]] virtual CGFloat Advance(CGGlyph glyph) const = 0;

  /// @return the glyph's outline in the face's own units, y upwards; empty for a blank, for a glyph
  /// the face does not have, and for a face without outlines.
  [[nodiscard]] virtual CGPath Outline(CGGlyph glyph) const = 0;

  /// @return the font file, a collection perhaps; empty for a standard face. Valid while the face
  /// lives.
  [[nodiscard]] virtual std::span<const char> Program() const = 0;

  /// @return which member of the collection the face is; 0 when the file is none.
  [[nodiscard]] virtual unsigned ProgramIndex() const = 0;

 private:
  CGFontDescription description_;
};

using CGFontRef = const CGFont*;

}  // namespace kelvane

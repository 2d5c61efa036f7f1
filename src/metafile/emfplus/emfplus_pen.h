#pragma once

#include <optional>
#include <variant>
#include <vector>

#include "metafile/emfplus/emfplus_brush.h"
#include "metafile/emfplus/emfplus_enumerations.h"
#include "metafile/emfplus/emfplus_path.h"
#include "metafile/emfplus/emfplus_types.h"

namespace kelvane {
inline namespace metafile {

// Custom caps are drawn in units of the pen's width. The line ends at their origin and comes from
// where y is negative.

/// EmfPlusCustomLineCapData ([MS-EMFPLUS] 2.2.2.13).
struct EmfPlusPathCap {
  EmfPlusLineCap baseCap{};  // of the line below the cap
  float baseInset = 0;       // how far before its end the line stops
  EmfPlusLineCap strokeStartCap{};
  EmfPlusLineCap strokeEndCap{};
  EmfPlusLineJoin strokeJoin{};
  float miterLimit = 10;
  float widthScale = 1;
  std::optional<EmfPlusPath> fill;    // filled with the pen's brush
  std::optional<EmfPlusPath> stroke;  // drawn with a pen as wide as the line
};

/// EmfPlusCustomLineCapArrowData ([MS-EMFPLUS] 2.2.2.12).
struct EmfPlusArrowCap {
  float width = 0;        // of the base
  float height = 0;       // from the tip, which is the line's end, to the base
  float middleInset = 0;  // how far the middle of the base lies nearer to the tip
  bool isFilled = false;
  EmfPlusLineCap lineStartCap{};
  EmfPlusLineCap lineEndCap{};
  EmfPlusLineJoin lineJoin{};
  float miterLimit = 10;
  float widthScale = 1;
};

/// EmfPlusCustomLineCap ([MS-EMFPLUS] 2.2.1.2).
using EmfPlusCustomLineCap = std::variant<EmfPlusPathCap, EmfPlusArrowCap>;

/// @param bytes  the object from its version on. @return nullopt for what is no cap.
std::optional<EmfPlusCustomLineCap> ReadEmfPlusCustomLineCap(ByteView& bytes);

/// EmfPlusPen ([MS-EMFPLUS] 2.2.1.7). What a file leaves out is as it is here.
struct EmfPlusPen {
  EmfPlusUnit unit = EmfPlusUnit::kWorld;  // of the width
  float width = 1;                         // below a pixel of the device it counts as one
  XForm transform{1, 0, 0, 1, 0, 0};       // of the pen's round tip
  EmfPlusLineCap startCap = EmfPlusLineCap::kFlat;
  EmfPlusLineCap endCap = EmfPlusLineCap::kFlat;
  EmfPlusLineJoin join = EmfPlusLineJoin::kMiter;
  float miterLimit = 10;
  EmfPlusLineStyle style = EmfPlusLineStyle::kSolid;
  EmfPlusDashCap dashCap = EmfPlusDashCap::kFlat;
  float dashOffset = 0;       // widths
  std::vector<float> dashes;  // of kCustom: dash, gap, ... in widths
  EmfPlusPenAlignment alignment = EmfPlusPenAlignment::kCenter;
  std::vector<float> compound;  // where bands of the line begin and end across it, from 0 to 1
  std::optional<EmfPlusCustomLineCap> customStartCap;  // of kCustom
  std::optional<EmfPlusCustomLineCap> customEndCap;    // of kCustom
  EmfPlusBrush brush;
};

/// @param bytes  the object from its version on. @return nullopt for what is no pen.
std::optional<EmfPlusPen> ReadEmfPlusPen(ByteView& bytes);

}  // namespace metafile
}  // namespace kelvane

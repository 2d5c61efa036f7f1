#include "classic/records/path_records.h"

#include "classic/context/abstract_context.h"
#include "classic/context/path_primitives.h"
#include "classic/reader/reader.h"
#include "platform/quartz/cg_context_calls.h"

namespace kelvane {

void BeginPathRecord::drawToPDF(AbstractContext& context) const {
  CGContextDrawPath(context.context, kCGPathStroke);
  context.inPath = 1;
  CGContextBeginPath(context.context);
}

void EndPathRecord::drawToPDF(AbstractContext& context) const {
  context.inPath = 0;
}

void FillPathRecord::drawToPDF(AbstractContext& context) const {
  CGContextDrawPath(context.context, painting);
}

void FillPathRecord::read(Reader& reader) {
  reader.read(bounds);
}

void SelectClipPathRecord::drawToPDF(AbstractContext& context) const {
  constexpr std::uint32_t kAnd = 1;  // RGN_AND ([MS-EMF] 2.1.29)
  if (iMode == kAnd) Clip(context);
}

void SelectClipPathRecord::read(Reader& reader) {
  reader.read(iMode);
}

void IntersectClipRectRecord::read(Reader& reader) {
  reader.read(rclClip);
}

}  // namespace kelvane

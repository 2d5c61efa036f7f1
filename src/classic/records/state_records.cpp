#include "classic/records/state_records.h"

#include "classic/context/abstract_context.h"
#include "classic/context/colors.h"
#include "classic/reader/reader.h"
#include "platform/quartz/cg_context_calls.h"

namespace kelvane {

void SaveDCRecord::drawToPDF(AbstractContext& context) const {
  context.SaveState();
  CGContextSaveGState(context.context);
}

void RestoreDCRecord::drawToPDF(AbstractContext& context) const {
  context.RestoreState(iRelative);
  CGContextRestoreGState(context.context);
}

void RestoreDCRecord::read(Reader& reader) {
  reader.read(iRelative);
}

void SetBkColorRecord::drawToPDF(AbstractContext& context) const {
  context.bkColor = FromColorRef(color);
}

void SetBkColorRecord::read(Reader& reader) {
  reader.read(color);
}

void SetBkModeRecord::drawToPDF(AbstractContext& context) const {
  context.bkMode = iMode;
}

void SetBkModeRecord::read(Reader& reader) {
  reader.read(iMode);
}

void SetTextColorRecord::drawToPDF(AbstractContext& context) const {
  context.textColor = FromColorRef(color);
}

void SetTextColorRecord::read(Reader& reader) {
  reader.read(color);
}

void SetTextAlignRecord::drawToPDF(AbstractContext& context) const {
  context.textAlign = static_cast<std::uint32_t>(iMode);
}

void SetTextAlignRecord::read(Reader& reader) {
  reader.read(iMode);
}

void SetMiterLimitRecord::drawToPDF(AbstractContext& context) const {
  CGContextSetMiterLimit(context.context, static_cast<CGFloat>(limit));
}

void SetMiterLimitRecord::read(Reader& reader) {
  reader.read(limit);
}

void SetArcDirectionRecord::drawToPDF(AbstractContext& context) const {
  constexpr std::int32_t kCounterClockwise = 1;
  context.clockwise = iArcDirection == kCounterClockwise ? 0 : 1;
}

void SetArcDirectionRecord::read(Reader& reader) {
  reader.read(iArcDirection);
}

}  // namespace kelvane

#include "classic/records/state_records.h"

#include "classic/context/abstract_context.h"
#include "classic/reader/reader.h"

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

}  // namespace kelvane

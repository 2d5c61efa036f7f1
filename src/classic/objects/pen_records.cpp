#include "classic/objects/pen_records.h"

#include <memory>

#include "classic/context/abstract_context.h"
#include "classic/objects/pen_object.h"
#include "classic/reader/reader.h"

namespace kelvane {

void CreatePenRecord::drawToPDF(AbstractContext& context) const {
  ExtLogPen extended;
  extended.style = pen.style;
  extended.width = static_cast<std::uint32_t>(pen.width.x);
  extended.color = pen.color;
  context.CreateObject(std::make_unique<ExtPenObject>(extended), objectIndex);
}

void CreatePenRecord::read(Reader& reader) {
  reader.readAll(objectIndex, pen);
}

void ExtCreatePenRecord::drawToPDF(AbstractContext& context) const {
  context.CreateObject(std::make_unique<ExtPenObject>(pen), objectIndex);
}

void ExtCreatePenRecord::read(Reader& reader) {
  reader.readAll(objectIndex, bitmapInfoOffset, bitmapInfoSize, bitsOffset, bitsSize, pen);
}

}  // namespace kelvane

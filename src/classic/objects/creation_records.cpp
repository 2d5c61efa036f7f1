#include "classic/objects/creation_records.h"

#include <memory>

#include "classic/context/abstract_context.h"
#include "classic/context/coordinates.h"
#include "classic/objects/graphics_objects.h"
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

void CreateBrushIndirectRecord::drawToPDF(AbstractContext& context) const {
  context.CreateObject(std::make_unique<BrushObject>(brush), objectIndex);
}

void CreateBrushIndirectRecord::read(Reader& reader) {
  reader.readAll(objectIndex, brush);
}

void CreateDIBBrushRecord::drawToPDF(AbstractContext& context) const {
  context.CreateObject(std::make_unique<DIBBrushObject>(), objectIndex);
}

void CreateDIBBrushRecord::read(Reader& reader) {
  reader.readAll(objectIndex, usage, bitmapInfoOffset, bitmapInfoSize, bitsOffset, bitsSize);
  reader.readList(bytes, bitsOffset);
}

void ExtCreateFontIndirectWRecord::drawToPDF(AbstractContext& context) const {
  context.CreateObject(std::make_unique<ExtFontObject>(font), objectIndex);
  ContextSetTextMatrix(context, static_cast<float>(font.font.lfEscapement / 10.0));
}

void ExtCreateFontIndirectWRecord::read(Reader& reader) {
  constexpr std::uint32_t kTypeAndSize = 8;
  reader.StartChecking();
  reader.readAll(objectIndex, font);
  if (reader.FinishChecking(size - kTypeAndSize)) return;
  const std::int64_t declaredEnd = reader.getPosition() + reader.GetSizeDifference();
  const bool negative = static_cast<std::int32_t>(size) < 0;
  const bool cutShort = reader.isEnd() && declaredEnd > reader.getPosition();
  if (negative) {
    reader.setToPosition(0);  // before any record, wherever in the file this one stands
  } else if (!cutShort) {
    reader.setToPosition(declaredEnd);
  }
}

}  // namespace kelvane

#include "classic/objects/brush_records.h"

#include <memory>

#include "classic/context/abstract_context.h"
#include "classic/objects/brush_objects.h"
#include "classic/reader/reader.h"

namespace kelvane {

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

}  // namespace kelvane

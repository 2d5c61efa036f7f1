#include "objects/brush_records.h"

#include <memory>

#include "context/abstract_context.h"
#include "objects/brush_objects.h"
#include "reader/reader.h"

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

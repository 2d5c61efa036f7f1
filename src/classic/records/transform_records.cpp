#include "classic/records/transform_records.h"

#include "classic/context/abstract_context.h"
#include "classic/context/coordinates.h"
#include "classic/reader/reader.h"

namespace kelvane {

void SetWorldTransformRecord::drawToPDF(AbstractContext& context) const {
  context.SetWorldTransform(xform);
}

void SetWorldTransformRecord::read(Reader& reader) {
  reader.read(xform);
}

void ModifyWorldTransformRecord::drawToPDF(AbstractContext& context) const {
  TransformContext(context, iMode, xform);
}

void ModifyWorldTransformRecord::read(Reader& reader) {
  reader.readAll(xform, iMode);
}

}  // namespace kelvane

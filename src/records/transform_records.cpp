#include "records/transform_records.h"

#include "context/abstract_context.h"
#include "context/coordinates.h"
#include "reader/reader.h"

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

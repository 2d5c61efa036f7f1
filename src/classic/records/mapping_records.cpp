#include "classic/records/mapping_records.h"

#include "classic/context/abstract_context.h"
#include "classic/context/coordinates.h"
#include "classic/reader/integer_arithmetic.h"
#include "classic/reader/reader.h"

namespace kelvane {
namespace {

// In single precision throughout, as the rounding shows in the result. Coordinates, which are not
// scaled here, are in double.
std::int32_t ScaleExtent(std::int32_t extent, std::int32_t numerator, std::int32_t denominator) {
  if (denominator == 0) return extent;
  const float scale = static_cast<float>(numerator) / static_cast<float>(denominator);
  return Truncate(static_cast<double>(static_cast<float>(extent) * scale));
}

}  // namespace

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

void SetMapModeRecord::drawToPDF(AbstractContext& context) const {
  context.mapMode = iMode;
}

void SetMapModeRecord::read(Reader& reader) {
  reader.read(iMode);
}

void SetWindowExtExRecord::drawToPDF(AbstractContext& context) const {
  context.windowExt = extent;
  context.windowExtYPositive = extent.cy > 0 ? 1 : 0;
}

void SetWindowExtExRecord::read(Reader& reader) {
  reader.read(extent);
}

void SetWindowOrgExRecord::drawToPDF(AbstractContext& context) const {
  context.windowOrg = {origin.x, origin.y};
}

void SetWindowOrgExRecord::read(Reader& reader) {
  reader.read(origin);
}

void SetViewPortExtExRecord::drawToPDF(AbstractContext& context) const {
  context.viewportExt = extent;
}

void SetViewPortExtExRecord::read(Reader& reader) {
  reader.read(extent);
}

void SetViewPortOrgExRecord::drawToPDF(AbstractContext& context) const {
  context.viewportOrg = {origin.x, origin.y};
}

void SetViewPortOrgExRecord::read(Reader& reader) {
  reader.read(origin);
}

void ScaleExtExRecord::drawToPDF(AbstractContext& context) const {
  SIZEL& extent = scaled == ScaledExtent::kWindow ? context.windowExt : context.viewportExt;
  extent = {ScaleExtent(extent.cx, xNum, xDenom), ScaleExtent(extent.cy, yNum, yDenom)};
}

void ScaleExtExRecord::read(Reader& reader) {
  reader.readAll(xNum, xDenom, yNum, yDenom);
}

}  // namespace kelvane

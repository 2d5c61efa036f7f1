#include "classic/objects/object_records.h"

#include "classic/context/abstract_context.h"
#include "classic/context/colors.h"
#include "classic/context/coordinates.h"
#include "classic/objects/graphics_objects.h"
#include "classic/reader/integer_arithmetic.h"
#include "classic/reader/reader.h"
#include "platform/quartz/cg_context_calls.h"

namespace kelvane {
namespace {

/// Stock objects that playback knows, by the low 16 bits of their index ([MS-EMF] 2.1.31).
enum class StockObject : std::uint16_t {
  kWhiteBrush = 0,
  kBlackBrush = 4,
  kNullBrush = 5,
  kWhitePen = 6,
  kBlackPen = 7,
  kNullPen = 8,
};

constexpr ContextColor kWhite = {1, 1, 1};
constexpr ContextColor kBlack = {0, 0, 0};

void SelectBrush(AbstractContext& context, const ContextColor& color, std::uint32_t style) {
  context.hollowBrush = style == kNullBrushStyle ? 1 : 0;
  context.fillColor = color;
  SetSurfaceFillColor(context, color);
}

// Any other stock object, the grey brushes and the fonts among them, changes nothing.
void SelectStockObject(AbstractContext& context, StockObject object) {
  switch (object) {
    case StockObject::kWhiteBrush:
      return SelectBrush(context, kWhite, kSolidBrushStyle);
    case StockObject::kBlackBrush:
      return SelectBrush(context, kBlack, kSolidBrushStyle);
    case StockObject::kNullBrush:
      context.hollowBrush = 1;
      return;
    case StockObject::kWhitePen:
      return SetSurfaceStrokeColor(context, kWhite);
    case StockObject::kBlackPen:
      return SetSurfaceStrokeColor(context, kBlack);
    case StockObject::kNullPen:
      return CGContextSetLineWidth(context.context, 0);
  }
}

// A mirrored viewport makes the width negative, which counts as the unsigned number of its bits.
std::uint32_t PageWidth(const AbstractContext& context, std::uint32_t width) {
  const std::int32_t window = context.windowExt.cx;
  const std::int32_t viewport = context.viewportExt.cx;
  if (context.mapMode == kMapModeAnisotropic && window != 0 && viewport != 0) {
    const double ratio = static_cast<double>(viewport) / static_cast<double>(window);
    width = TruncateToUnsigned(static_cast<double>(width) * ratio);
  }
  return width != 0 ? width : 1;
}

void SelectPen(AbstractContext& context, const ExtPenObject& pen) {
  SetSurfaceStrokeColor(context, FromColorRef(pen.getColor()));
  context.penWidth = PageWidth(context, pen.getWidth());
  CGContextSetLineWidth(context.context, static_cast<CGFloat>(context.penWidth));
}

void Select(AbstractContext& context, const Object& object) {
  switch (object.type) {
    case Object::ObjectType::kPen:
      return SelectPen(context, static_cast<const ExtPenObject&>(object));
    case Object::ObjectType::kBrush:
      return SelectBrush(context, FromColorRef(object.getColor()), object.getBrushStyle());
    case Object::ObjectType::kFont:
      context.font = static_cast<const ExtFontObject&>(object).font.font;
      return;
    case Object::ObjectType::kPatternBrush:
      return;
  }
}

}  // namespace

void ObjectRecord::read(Reader& reader) {
  reader.read(objectIndex);
}

// Any index that the table does not know is taken for a stock object's, high bit or not.
void SelectObjectRecord::drawToPDF(AbstractContext& context) const {
  if (!context.SelectObject(objectIndex)) {
    SelectStockObject(context, static_cast<StockObject>(objectIndex & 0xFFFF));
  } else if (const Object* const selected = context.GetCurrentObject(); selected != nullptr) {
    Select(context, *selected);
  }
}

void DeleteObjectRecord::drawToPDF(AbstractContext& context) const {
  context.DeleteObject(objectIndex);
}

}  // namespace kelvane

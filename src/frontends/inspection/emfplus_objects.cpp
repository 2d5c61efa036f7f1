#include <array>
#include <string_view>

#include "frontends/inspection/emfplus_printers.h"

namespace kelvane {
namespace {

/// Writes the fields of each kind of object.
struct ObjectPrinter {
  void operator()(std::monostate /*nothing*/) const {
    fields.Quoted("Damaged", "it cannot be read");
  }

  void operator()(const EmfPlusBrush& brush) const {
    constexpr std::array<std::string_view, 5> kKinds = {"Solid", "Hatch", "Texture",
                                                        "LinearGradient", "PathGradient"};
    fields.Quoted("Brush", kKinds[brush.index()]);
    if (const auto* color = std::get_if<Argb>(&brush)) fields.Field("Color", *color);
    if (const auto* hatch = std::get_if<EmfPlusHatchBrush>(&brush)) {
      fields.Field("HatchStyle", hatch->style)
          .Field("ForeColor", hatch->foreground)
          .Field("BackColor", hatch->background);
    }
    if (const auto* linear = std::get_if<EmfPlusLinearGradientBrush>(&brush)) {
      fields.Field("RectF", linear->rectangle)
          .Field("StartColor", linear->start)
          .Field("EndColor", linear->end)
          .Field("TransformMatrix", linear->transform);
    }
    if (const auto* path = std::get_if<EmfPlusPathGradientBrush>(&brush)) {
      fields.Field("CenterColor", path->centerColor)
          .Field("CenterPoint", path->center)
          .Field("SurroundingColors", path->surroundColors);
    }
    if (const auto* texture = std::get_if<EmfPlusTextureBrush>(&brush)) {
      fields.Field("TransformMatrix", texture->transform);
      if (texture->image) (*this)(*texture->image);
    }
  }

  void operator()(const EmfPlusPen& pen) const {
    fields.Field("PenUnit", NumberOf(pen.unit))
        .Field("PenWidth", pen.width)
        .Field("LineStyle", NumberOf(pen.style))
        .Field("StartCap", NumberOf(pen.startCap))
        .Field("EndCap", NumberOf(pen.endCap))
        .Field("Join", NumberOf(pen.join));
    (*this)(pen.brush);
  }

  void operator()(const EmfPlusPath& path) const {
    fields.Field("Winding", path.isWinding)
        .Field("PathPoints", path.points)
        .Field("PathPointTypes", path.types);
  }

  void operator()(const EmfPlusRegion& region) const {
    fields.Field("RegionNodes", region.nodes.size());
  }

  void operator()(const EmfPlusImage& image) const {
    if (const auto* pixels = std::get_if<EmfPlusPixels>(&image)) {
      fields.Field("Width", pixels->width)
          .Field("Height", pixels->height)
          .Hexadecimal("PixelFormat", NumberOf(pixels->format))
          .Field("PixelData", ByteView(pixels->rows));
    }
    if (const auto* file = std::get_if<EmfPlusImageFile>(&image))
      fields.Field("File", ByteView(file->bytes));
    if (const auto* metafile = std::get_if<EmfPlusMetafile>(&image)) {
      fields.Field("MetafileType", NumberOf(metafile->type))
          .Field("MetafileData", ByteView(metafile->bytes));
    }
  }

  void operator()(const EmfPlusFont& font) const {
    fields.Field("EmSize", font.emSize)
        .Field("SizeUnit", NumberOf(font.unit))
        .Field("FontStyleFlags", font.style)
        .Field("FamilyName", font.family);
  }

  void operator()(const EmfPlusStringFormat& format) const {
    fields.Hexadecimal("StringFormatFlags", format.flags)
        .Field("StringAlignment", NumberOf(format.alignment))
        .Field("LineAlign", NumberOf(format.lineAlignment))
        .Field("LeadingMargin", format.leadingMargin)
        .Field("TrailingMargin", format.trailingMargin)
        .Field("Trimming", NumberOf(format.trimming));
  }

  void operator()(const EmfPlusImageAttributes& attributes) const {
    fields.Field("WrapMode", NumberOf(attributes.wrap)).Field("ClampColor", attributes.clampColor);
  }

  void operator()(const EmfPlusCustomLineCap& cap) const {
    fields.Quoted("Cap", std::holds_alternative<EmfPlusArrowCap>(cap) ? "Arrow" : "Paths");
  }

  FieldWriter& fields;
};

std::string_view NameOf(EmfPlusObjectType type) {
  constexpr std::array<std::string_view, 10> kNames = {
      "none",         "Brush",           "Pen",          "Path", "Region", "Image", "Font",
      "StringFormat", "ImageAttributes", "CustomLineCap"};
  const auto index = static_cast<std::size_t>(type);
  return kNames[index < kNames.size() ? index : 0];
}

}  // namespace

void AddEmfPlusObject(const EmfPlusStoredObject& stored, FieldWriter& fields) {
  fields.Quoted("ObjectType", NameOf(stored.type));
  std::visit(ObjectPrinter{fields}, stored.object);
}

}  // namespace kelvane

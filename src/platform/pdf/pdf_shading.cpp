#include "platform/pdf/pdf_shading.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/pdf/pdf_content.h"
#include "platform/pdf/pdf_group.h"
#include "platform/pdf/pdf_number.h"
#include "platform/pdf/pdf_resources.h"

namespace kelvane {
namespace {

enum ShadingType : std::uint8_t { kAxial = 2, kFreeTriangles = 4 };
enum FunctionType : std::uint8_t { kExponential = 2, kStitching = 3 };

QPDFObjectHandle Numbers(std::span<const double> values) {
  auto array = QPDFObjectHandle::newArray();
  for (const double value : values)
    array.appendItem(PdfNumber(value));
  return array;
}

QPDFObjectHandle Numbers(std::initializer_list<double> values) {
  return Numbers(std::span(values.begin(), values.size()));
}

QPDFObjectHandle ColorArray(const CGColor& color) {
  return Numbers({color.red, color.green, color.blue});
}

QPDFObjectHandle NewFunction(FunctionType type) {
  auto function = QPDFObjectHandle::newDictionary();
  function.replaceKey("/FunctionType", QPDFObjectHandle::newInteger(type));
  function.replaceKey("/Domain", Numbers({0, 1}));
  return function;
}

QPDFObjectHandle Between(const CGColor& first, const CGColor& last) {
  auto function = NewFunction(kExponential);
  function.replaceKey("/C0", ColorArray(first));
  function.replaceKey("/C1", ColorArray(last));
  function.replaceKey("/N", QPDFObjectHandle::newInteger(1));
  return function;
}

/// @return stops from 0 to 1 that show what `stops` do.
std::vector<CGGradientStop> WholeLine(std::vector<CGGradientStop> stops) {
  if (stops.front().location > 0) stops.insert(stops.begin(), {0, stops.front().color});
  if (stops.back().location < 1) stops.push_back({1, stops.back().color});
  return stops;
}

/// @return the colour along the line, from 0 to 1. Stops in one place are an edge, which takes no
///         function of its own.
QPDFObjectHandle ColorFunction(const std::vector<CGGradientStop>& stops) {
  auto functions = QPDFObjectHandle::newArray();
  auto bounds = QPDFObjectHandle::newArray();
  auto encode = QPDFObjectHandle::newArray();
  for (std::size_t i = 1; i < stops.size(); ++i) {
    if (stops[i].location == stops[i - 1].location) continue;
    if (functions.getArrayNItems() > 0) bounds.appendItem(PdfNumber(stops[i - 1].location));
    functions.appendItem(Between(stops[i - 1].color, stops[i].color));
    encode.appendItem(PdfNumber(0));
    encode.appendItem(PdfNumber(1));
  }
  if (functions.getArrayNItems() == 1) return functions.getArrayItem(0);
  auto stitched = NewFunction(kStitching);
  stitched.replaceKey("/Functions", functions);
  stitched.replaceKey("/Bounds", bounds);
  stitched.replaceKey("/Encode", encode);
  return stitched;
}

QPDFObjectHandle NewShading(ShadingType type) {
  auto shading = QPDFObjectHandle::newDictionary();
  shading.replaceKey("/ShadingType", QPDFObjectHandle::newInteger(type));
  shading.replaceKey("/ColorSpace", QPDFObjectHandle::newName("/DeviceRGB"));
  return shading;
}

QPDFObjectHandle Add(PdfWriter& writer, const CGAxialShading& axial) {
  auto shading = NewShading(kAxial);
  shading.replaceKey("/Coords", Numbers({axial.start.x, axial.start.y, axial.end.x, axial.end.y}));
  shading.replaceKey("/Function", ColorFunction(WholeLine(axial.stops)));
  const auto yes = QPDFObjectHandle::newBool(true);
  shading.replaceKey("/Extend", QPDFObjectHandle::newArray({yes, yes}));
  return writer.AddSharedObject(shading);
}

/// One coordinate of the points of a mesh: where they lie, and so how they are stored.
class Span {
 public:
  void Include(double value) {
    low_ = std::min(low_, value);
    high_ = std::max(high_, value);
  }

  [[nodiscard]] double Low() const { return low_; }
  [[nodiscard]] double High() const { return high_; }
  [[nodiscard]] double Length() const { return high_ - low_; }

  /// @return the value as a number of so many bits.
  [[nodiscard]] std::uint32_t Stored(double value, unsigned bits) const {
    if (Length() == 0) return 0;
    const auto last = static_cast<double>((std::uint64_t{1} << bits) - 1);
    return static_cast<std::uint32_t>(std::llround((value - low_) / Length() * last));
  }

 private:
  double low_ = std::numeric_limits<double>::infinity();
  double high_ = -std::numeric_limits<double>::infinity();
};

/// @return how many bits tell coordinates to a thousandth of a point, or as well as can be.
unsigned BitsFor(double length) {
  constexpr double kThousandths = 1000;
  if (length * kThousandths <= 0xFFFF) return 16;
  return length * kThousandths <= 0xFFFFFF ? 24 : 32;
}

void AppendBytes(std::vector<unsigned char>& data, std::uint32_t value, unsigned bits) {
  while (bits != 0) {
    bits -= 8;
    data.push_back(static_cast<unsigned char>(value >> bits));
  }
}

unsigned char ByteOf(CGFloat component) {
  return static_cast<unsigned char>(std::lround(std::clamp(component, 0.0F, 1.0F) * 255));
}

/// The box of a mesh.
struct Spans {
  Span x;
  Span y;
};

Spans SpansOf(const CGTriangleMesh& mesh) {
  Spans spans;
  for (const CGMeshVertex& vertex : mesh.vertices) {
    spans.x.Include(vertex.point.x);
    spans.y.Include(vertex.point.y);
  }
  return spans;
}

QPDFObjectHandle Add(PdfWriter& writer, const CGTriangleMesh& mesh) {
  constexpr int kComponentBits = 8;
  constexpr int kFlagBits = 8;
  constexpr unsigned char kNewTriangle = 0;
  const auto [x, y] = SpansOf(mesh);
  const unsigned bits = BitsFor(std::max(x.Length(), y.Length()));

  std::vector<unsigned char> data;
  data.reserve(mesh.vertices.size() * (4 + 2 * bits / 8));
  for (const auto& [point, color] : mesh.vertices) {
    data.push_back(kNewTriangle);
    AppendBytes(data, x.Stored(point.x, bits), bits);
    AppendBytes(data, y.Stored(point.y, bits), bits);
    for (const CGFloat component : {color.red, color.green, color.blue})
      data.push_back(ByteOf(component));
  }

  auto shading = NewShading(kFreeTriangles);
  shading.replaceKey("/BitsPerCoordinate", QPDFObjectHandle::newInteger(bits));
  shading.replaceKey("/BitsPerComponent", QPDFObjectHandle::newInteger(kComponentBits));
  shading.replaceKey("/BitsPerFlag", QPDFObjectHandle::newInteger(kFlagBits));
  shading.replaceKey("/Decode", Numbers({x.Low(), x.High(), y.Low(), y.High(), 0, 1, 0, 1, 0, 1}));
  return writer.AddSharedStream(shading, data);
}

}  // namespace

QPDFObjectHandle AddShading(PdfWriter& writer, const CGShading& shading) {
  return std::visit([&](const auto& kind) { return Add(writer, kind); }, shading);
}

QPDFObjectHandle AddMeshGroup(PdfWriter& writer, const CGTriangleMesh& mesh) {
  std::string text;
  PdfContent content([&text](std::string_view piece) { text += piece; });
  PdfResources resources;
  content.Shade(resources.NameOf(Add(writer, mesh), kPdfShading));
  content.Finish();
  const auto [x, y] = SpansOf(mesh);
  const CGRect box = {{static_cast<CGFloat>(x.Low()), static_cast<CGFloat>(y.Low())},
                      {static_cast<CGFloat>(x.Length()), static_cast<CGFloat>(y.Length())}};
  return AddGroup(writer, text, resources, box);
}

}  // namespace kelvane

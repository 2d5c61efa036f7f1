#include "platform/pdf/pdf_shading.h"

#include <algorithm>
#include <array>
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

/// Those of a colour's numbers that a shading shows.
class Components {
 public:
  Components(const CGColor& color, PdfChannels channels)
      : values_{color.red, color.green, color.blue},
        count_(channels == PdfChannels::kColors ? values_.size() : 1) {
    if (channels == PdfChannels::kAlpha) values_[0] = color.alpha;
  }

  [[nodiscard]] std::span<const CGFloat> Values() const { return {values_.data(), count_}; }

 private:
  std::array<CGFloat, 3> values_;
  std::size_t count_;
};

QPDFObjectHandle ColorArray(const CGColor& color, PdfChannels channels) {
  auto array = QPDFObjectHandle::newArray();
  const Components components(color, channels);
  for (const CGFloat value : components.Values())
    array.appendItem(PdfNumber(value));
  return array;
}

QPDFObjectHandle NewFunction(FunctionType type) {
  auto function = QPDFObjectHandle::newDictionary();
  function.replaceKey("/FunctionType", QPDFObjectHandle::newInteger(type));
  function.replaceKey("/Domain", Numbers({0, 1}));
  return function;
}

QPDFObjectHandle Between(const CGColor& first, const CGColor& last, PdfChannels channels) {
  auto function = NewFunction(kExponential);
  function.replaceKey("/C0", ColorArray(first, channels));
  function.replaceKey("/C1", ColorArray(last, channels));
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
QPDFObjectHandle ColorFunction(const std::vector<CGGradientStop>& stops, PdfChannels channels) {
  auto functions = QPDFObjectHandle::newArray();
  auto bounds = QPDFObjectHandle::newArray();
  auto encode = QPDFObjectHandle::newArray();
  for (std::size_t i = 1; i < stops.size(); ++i) {
    if (stops[i].location == stops[i - 1].location) continue;
    if (functions.getArrayNItems() > 0) bounds.appendItem(PdfNumber(stops[i - 1].location));
    functions.appendItem(Between(stops[i - 1].color, stops[i].color, channels));
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

QPDFObjectHandle NewShading(ShadingType type, PdfChannels channels) {
  auto shading = QPDFObjectHandle::newDictionary();
  shading.replaceKey("/ShadingType", QPDFObjectHandle::newInteger(type));
  shading.replaceKey(
      "/ColorSpace",
      QPDFObjectHandle::newName(channels == PdfChannels::kColors ? "/DeviceRGB" : "/DeviceGray"));
  return shading;
}

QPDFObjectHandle Add(PdfWriter& writer, const CGAxialShading& axial, PdfChannels channels) {
  auto shading = NewShading(kAxial, channels);
  shading.replaceKey("/Coords", Numbers({axial.start.x, axial.start.y, axial.end.x, axial.end.y}));
  shading.replaceKey("/Function", ColorFunction(WholeLine(axial.stops), channels));
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

QPDFObjectHandle Add(PdfWriter& writer, const CGTriangleMesh& mesh, PdfChannels channels) {
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
    const Components components(color, channels);
    for (const CGFloat component : components.Values())
      data.push_back(ByteOf(component));
  }

  auto shading = NewShading(kFreeTriangles, channels);
  shading.replaceKey("/BitsPerCoordinate", QPDFObjectHandle::newInteger(bits));
  shading.replaceKey("/BitsPerComponent", QPDFObjectHandle::newInteger(kComponentBits));
  shading.replaceKey("/BitsPerFlag", QPDFObjectHandle::newInteger(kFlagBits));
  std::vector<double> decode = {x.Low(), x.High(), y.Low(), y.High(), 0, 1};
  if (channels == PdfChannels::kColors) decode.insert(decode.end(), {0, 1, 0, 1});
  shading.replaceKey("/Decode", Numbers(decode));
  return writer.AddSharedStream(shading, data);
}

CGRect BoxOf(const CGTriangleMesh& mesh, const PdfPlacedShading& placed) {
  const auto [x, y] = SpansOf(mesh);
  const CGRect box = {{static_cast<CGFloat>(x.Low()), static_cast<CGFloat>(y.Low())},
                      {static_cast<CGFloat>(x.Length()), static_cast<CGFloat>(y.Length())}};
  return CGRectApplyAffineTransform(box, placed.matrix);
}

CGRect BoxOf(const CGAxialShading& /*axial*/, const PdfPlacedShading& placed) {
  return placed.page;
}

}  // namespace

QPDFObjectHandle AddShading(PdfWriter& writer, const CGShading& shading, PdfChannels channels) {
  return std::visit([&](const auto& kind) { return Add(writer, kind, channels); }, shading);
}

QPDFObjectHandle AddShadingGroup(PdfWriter& writer, const PdfPlacedShading& placed,
                                 PdfChannels channels) {
  std::string text;
  PdfContent content([&text](std::string_view piece) { text += piece; });
  PdfResources resources;
  if (!(placed.matrix == CGAffineTransformIdentity)) content.Concat(placed.matrix);
  content.Shade(resources.NameOf(AddShading(writer, placed.shading, channels), kPdfShading));
  content.Finish();
  const CGRect box =
      std::visit([&](const auto& kind) { return BoxOf(kind, placed); }, placed.shading);
  return AddGroup(writer, text, resources, box);
}

}  // namespace kelvane

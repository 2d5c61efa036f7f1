#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <vector>

#include "gdi/palette.h"
#include "metafile/array_view.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_types.h"

namespace kelvane {

/// An array as files hold it, together with its bytes.
template <class T>
class StoredArray {
 public:
  [[nodiscard]] ArrayView<T> View() const {
    return {bytes_.data(), bytes_.size() / kStoredSize<T>};
  }

 protected:
  void Add(std::uint32_t value) {
    for (int shift = 0; shift < 32; shift += 8)
      bytes_.push_back(static_cast<unsigned char>(value >> shift));
  }
  void Add(std::uint8_t value) { bytes_.push_back(value); }

 private:
  std::vector<unsigned char> bytes_;
};

class StoredRectangles : public StoredArray<RectangleL> {
 public:
  StoredRectangles(std::initializer_list<RectangleL> rectangles) {
    for (const RectangleL& rectangle : rectangles)
      Add(rectangle);
  }

  void Add(const RectangleL& r) {
    for (const std::int32_t edge : {r.left, r.top, r.right, r.bottom})
      StoredArray::Add(static_cast<std::uint32_t>(edge));
  }
};

class StoredNumbers : public StoredArray<std::uint32_t> {
 public:
  StoredNumbers(std::initializer_list<std::uint32_t> numbers) {
    for (const std::uint32_t number : numbers)
      Add(number);
  }
};

class StoredAdvances : public StoredArray<std::int32_t> {
 public:
  StoredAdvances(std::initializer_list<std::int32_t> advances) {
    for (const std::int32_t advance : advances)
      Add(static_cast<std::uint32_t>(advance));
  }
};

class StoredPoints : public StoredArray<PointL> {
 public:
  StoredPoints(std::initializer_list<PointL> points) {
    for (const PointL& point : points)
      for (const std::int32_t coordinate : {point.x, point.y})
        Add(static_cast<std::uint32_t>(coordinate));
  }
};

/// The same with 16 bits a coordinate.
class StoredPoints16 : public StoredArray<Point16> {
 public:
  StoredPoints16(std::initializer_list<PointL> points) {
    for (const PointL& point : points) {
      for (const std::int32_t coordinate : {point.x, point.y}) {
        Add(static_cast<std::uint8_t>(coordinate));
        Add(static_cast<std::uint8_t>(coordinate >> 8));
      }
    }
  }
};

class StoredPointTypes : public StoredArray<PointType> {
 public:
  StoredPointTypes(std::initializer_list<unsigned> types) {
    for (const unsigned type : types)
      Add(static_cast<std::uint8_t>(type));
  }
};

class StoredPaletteEntries : public StoredArray<PaletteEntry> {
 public:
  StoredPaletteEntries(std::initializer_list<RgbColor> colors) {
    for (const RgbColor& color : colors)
      for (const std::uint8_t part : {color.red, color.green, color.blue, std::uint8_t{0}})
        Add(part);
  }
};

}  // namespace kelvane

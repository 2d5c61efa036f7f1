#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>
#include <vector>

#include "classic/reader/buffer_reader.h"
#include "classic/reader/gdi_structures.h"
#include "classic/reader/geometry_types.h"

namespace kelvane {

/// The one source of bytes that everything is decoded from, and the measure of how far each record
/// was read. Nothing here fails: a read past the end leaves the rest of its destination as it was.
class Reader {
 public:
  /// @param start  borrowed; must outlive the reader.
  /// @param size   as for BufferReader.
  Reader(const unsigned char* start, std::int32_t size) : source_(start, size) {}

  // Kept so that a parse ends alike whatever it reads from; a block of memory needs no opening or
  // closing.
  void SetSource(const char* /*path*/) {}
  void closeSource() const {}

  [[nodiscard]] std::int32_t bufferReaderSize() const { return source_.bufferSize(); }
  [[nodiscard]] bool isEnd() const { return source_.isEnd(); }
  [[nodiscard]] std::int64_t getPosition() const { return source_.getPosition(); }
  void setToPosition(std::int64_t position) {
    source_.setToPosition(static_cast<std::uint32_t>(position));
  }
  [[nodiscard]] std::uint32_t Remaining() const { return source_.Remaining(); }

  /// Reads one scalar of 1, 2 or 4 bytes; see BufferReader::GetBytes.
  void GetBytes(unsigned char* destination, unsigned long count) {
    source_.GetBytes(destination, count);
  }

  /// Lends the next bytes and moves past them; see BufferReader::TakeBytes.
  [[nodiscard]] std::span<const unsigned char> TakeBytes(std::size_t count) {
    return source_.TakeBytes(count);
  }

  /// Reads one integer, enumeration or float of its own width.
  template <class T>
  requires std::is_arithmetic_v<T>
  void read(T& scalar) { GetBytes(reinterpret_cast<unsigned char*>(&scalar), sizeof(T)); }

  void read(Point16& point) { readAll(point.x, point.y); }
  void read(Point& point) { readAll(point.x, point.y); }
  void read(PointL& point) { readAll(point.x, point.y); }
  void read(SIZEL& size) { readAll(size.cx, size.cy); }
  void read(RectangleL& rectangle) {
    readAll(rectangle.left, rectangle.top, rectangle.right, rectangle.bottom);
  }
  void read(XForm& transform) {
    readAll(transform.eM11, transform.eM12, transform.eM21, transform.eM22, transform.eDx,
            transform.eDy);
  }
  /// Reads `string.length` units into `string.data`; nothing when the length is 0 or negative.
  void read(WcharString& string);

  // Structures embedded in records. None of them is checked, or knows the size of its record.
  void read(LogicalPen& pen);
  void read(LogicalBrush& brush);
  void read(ExtLogPen& pen);
  void read(TextW& text);
  void read(LogFontW& font);
  void read(PANOSE& panose);
  void read(ExtLogFontW& font);

  template <class T, std::size_t count>
  void read(std::array<T, count>& elements) {
    for (T& element : elements)
      read(element);
  }

  /// Reads values of any kind one after the other.
  template <class... Values>
  void readAll(Values&... values) {
    (read(values), ...);
  }

  /// Appends up to `count` elements to `list`, stopping when the data can supply no further whole
  /// one. What is left of the data then goes with them, so that half an element is never taken for
  /// what follows. Memory follows the data, whatever the count promises.
  template <class T>
  void readList(std::vector<T>& list, std::uint32_t count) {
    readList(list, count, [this](T& element) { read(element); });
  }

  /// The same with elements that `readElement` reads, as many bytes each as a T has.
  template <class T, class ReadElement>
  void readList(std::vector<T>& list, std::uint32_t count, ReadElement readElement) {
    const std::size_t known = list.size();
    const std::size_t whole = std::min<std::size_t>(count, Remaining() / sizeof(T));
    list.resize(known + whole);
    for (auto element = list.begin() + static_cast<std::ptrdiff_t>(known); element != list.end();
         ++element) {
      readElement(*element);
    }
    if (whole < count) (void)TakeBytes(Remaining());
  }

  /// Remembers the position; checks nest.
  void StartChecking() { checks_.push_back(static_cast<std::uint32_t>(getPosition())); }

  /// Compares what was read since the matching StartChecking with `expected` bytes. The position
  /// stays.
  /// @return true when exactly `expected` bytes were read.
  bool FinishChecking(std::uint32_t expected);

  /// @return expected minus read bytes of the last FinishChecking; negative after reading too far.
  [[nodiscard]] std::int32_t GetSizeDifference() const {
    return static_cast<std::int32_t>(sizeDifference_);
  }

  /// @return the bytes read inside finished checks, all together. Records that overlap count again
  ///         and again, which is what gives a file of overlapping records away.
  [[nodiscard]] std::uint64_t CheckedBytes() const { return checkedBytes_; }

  /// @return bytes: the most that one parse of this block may read in all, and the most that its
  ///         bitmaps may decode to in all. Real files stay far below; it keeps time and memory in
  ///         proportion to the data.
  [[nodiscard]] std::uint64_t ByteBudget() const {
    return 8 * static_cast<std::uint64_t>(bufferReaderSize()) + (std::uint64_t{16} << 20);
  }

  /// Takes `count` bytes out of the budget that all decoded bitmaps of this parse share.
  /// @return false, and nothing taken, when that many are not left: what was to be decoded must not
  ///         be.
  [[nodiscard]] bool ClaimDecodedBytes(std::uint64_t count);

 private:
  BufferReader source_;
  std::vector<std::uint32_t> checks_;
  std::uint32_t sizeDifference_ = 0;
  std::uint64_t checkedBytes_ = 0;
  std::uint64_t decodedBytes_ = 0;  // claimed; never more than the budget
};

}  // namespace kelvane
